// SPDX-License-Identifier: MIT
#include "ui/PanelModel.h"

#include "control/AudioController.h"
#include "platform/Workspace.h"
#include "shell/UpdateChecker.h"
#include "ui/LegibleColor.h"
#include "ui/MessageText.h"
#include "ui/OutputEntries.h"
#include "ui/VolumeText.h"

#include <QCoreApplication>

#include <algorithm>
#include <utility>

namespace fadeloom {

PanelModel::PanelModel(AudioController& controller, const PanelParts& parts, QObject* parent)
    : QObject(parent)
    , controller_(controller)
    , parts_(parts)
    , rows_(controller, parts.clock, parts.mainLoop, this)
    , settings_(controller, parts, this)
    , banner_(readBanner())
    , appearance_(controller.state().settings->appearance)
{
    observe();
}

void PanelModel::observe()
{
    const auto& state = controller_.state();
    const auto whenAssigned = [this](const auto& published, auto callback) {
        observed_.push_back(published.whenAssigned(callback));
    };
    whenAssigned(state.permission, [this] { Q_EMIT pageChanged(); });
    whenAssigned(state.devices, [this] { Q_EMIT outputsChanged(); });
    whenAssigned(state.defaultDeviceUID, [this] { Q_EMIT outputsChanged(); });
    whenAssigned(state.lastRecording, [this] { Q_EMIT lastRecordingChanged(); });
    whenAssigned(state.apps, [this] { refreshBanner(); });  // The app on a call may have changed.
    whenAssigned(state.callApp, [this] { refreshBanner(); });
    whenAssigned(state.error, [this] { refreshBanner(); });
    whenAssigned(state.settings, [this] {
        refreshBanner();
        refreshAppearance();
    });
    if (parts_.updates != nullptr)
        whenAssigned(parts_.updates->available(), [this] { Q_EMIT availableVersionChanged(); });
}

void PanelModel::refreshBanner()
{
    auto now = readBanner();
    if (now == banner_)
        return;
    banner_ = std::move(now);
    Q_EMIT bannerChanged();
}

void PanelModel::refreshAppearance()
{
    const auto& now = controller_.state().settings->appearance;
    if (std::exchange(appearance_, now) != now)
        Q_EMIT appearanceChanged();
}

void PanelModel::setShowsSettings(bool isShown)
{
    if (isShown == showsSettings_)
        return;
    showsSettings_ = isShown;
    Q_EMIT pageChanged();
}

PanelModel::Page PanelModel::page() const
{
    if (showsSettings_)
        return Page::Settings;
    const bool isGranted = *controller_.state().permission == AudioPermission::State::granted;
    return isGranted ? Page::Mixer : Page::Permission;
}

bool PanelModel::isAccessDenied() const
{
    return *controller_.state().permission == AudioPermission::State::denied;
}

PanelModel::ShownBanner PanelModel::readBanner() const
{
    const auto& state = controller_.state();
    if (const auto& callApp = *state.callApp)
        return {Banner::Call, callText(*callApp)};
    if (const auto& error = *state.error)
        return {Banner::Error, messageText(*error)};
    return {};
}

QString PanelModel::callText(const std::string& bundleID) const
{
    const auto& state = controller_.state();
    const auto app = std::ranges::find(*state.apps, bundleID, &AppEntry::bundleID);
    const auto name = app == state.apps->end() ? QCoreApplication::translate("PanelModel", "A call app")
                                               : QString::fromStdString(app->name);
    const auto level = percentText(static_cast<double>(state.settings->focus.duckLevel));
    //: The name of an app, then a percentage with its sign.
    return QCoreApplication::translate("PanelModel", "%1 is on a call. Other apps lowered to %2")
        .arg(name, level);
}

QString PanelModel::output() const
{
    return systemOutputLabel(controller_.state());
}

QVariantList PanelModel::outputEntries() const
{
    return variantsOf(systemOutputEntries(controller_.state()));
}

QString PanelModel::lastRecording() const
{
    const auto& location = *controller_.state().lastRecording;
    return location ? QString::fromStdString(location->filename().string()) : QString();
}

QString PanelModel::availableVersion() const
{
    if (parts_.updates == nullptr || !*parts_.updates->available())
        return {};
    return QString::fromStdString((*parts_.updates->available())->version);
}

bool PanelModel::isDark() const
{
    return appearance_.theme == Theme::system ? desktop_.isDark : appearance_.theme == Theme::dark;
}

bool PanelModel::glass() const
{
    return appearance_.glass;
}

bool PanelModel::animations() const
{
    return appearance_.animations && !desktop_.reducesMotion;
}

bool PanelModel::levelMeters() const
{
    return appearance_.levelMeters;
}

QColor PanelModel::accentInk() const
{
    // The panel's background in Theme, in the variant with less contrast to text.
    const QColor ground = isDark() ? QColor(0x23, 0x21, 0x2B) : QColor(0xEF, 0xED, 0xF4);
    return desktop_.accent ? legibleBeside(QColor::fromRgb(*desktop_.accent), ground)
                           : QColor(Qt::transparent);
}

QColor PanelModel::accentFill() const
{
    return desktop_.accent ? legibleBeside(QColor::fromRgb(*desktop_.accent), Qt::white)
                           : QColor(Qt::transparent);
}

void PanelModel::setDesktopAppearance(const DesktopAppearance& appearance)
{
    desktop_ = appearance;
    Q_EMIT appearanceChanged();
}

void PanelModel::chooseOutput(const QString& key)
{
    const auto& devices = *controller_.state().devices;
    const auto device = std::ranges::find(devices, key.toUInt(), &OutputDevice::id);
    if (device != devices.end())
        controller_.setSystemOutput(OutputDevice(*device));
}

void PanelModel::dismissError()
{
    controller_.dismissError();
}

void PanelModel::revealLastRecording()
{
    controller_.revealLastRecording();
}

void PanelModel::requestPermission()
{
    controller_.requestPermission();
}

void PanelModel::openPrivacySettings()
{
    parts_.workspace.open(std::string(AudioPermission::settingsURL));
}

void PanelModel::openDownloadPage()
{
    if (parts_.updates != nullptr)
        parts_.updates->openDownloadPage();
}

void PanelModel::quit()
{
    parts_.quit();
}

}  // namespace fadeloom
