// SPDX-License-Identifier: MIT
#include "ui/ScreenshotRenderer.h"

#include "control/AudioController.h"
#include "ui/DemoData.h"
#include "ui/PanelEngine.h"
#include "ui/PanelModel.h"
#include "ui/PanelPicture.h"

#include <QImage>
#include <QImageWriter>
#include <QQuickItem>
#include <QString>
#include <QtGlobal>

#include <array>
#include <ostream>

namespace fadeloom::ScreenshotRenderer {
namespace {

struct Screen {
    const char* name;
    bool isExpanded;  // The first app is expanded.
    bool showsSettings;
};
constexpr std::array screens = {
    Screen{"panel", false, false}, Screen{"eq", true, false}, Screen{"settings", false, true}};

QImage draw(const Screen& screen, const std::string& expandedApp, AudioController& controller,
    const PanelParts& parts)
{
    PanelModel panel(controller, parts);
    panel.setShowsSettings(screen.showsSettings);
    PanelEngine engine;
    const auto view = engine.makeRootView(panel, QString::fromStdString(expandedApp));
    if (!view)
        return {};
    view->setProperty("limitsSettings", false);
    return pictureOf(*view);
}

}  // namespace

void prepareEnvironment()
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_SCALE_FACTOR", "2");
    qputenv("QT_QUICK_CONTROLS_STYLE", "Basic");
    for (const auto* const variable :
        {"QT_SCREEN_SCALE_FACTORS", "QT_QPA_PLATFORMTHEME", "QT_STYLE_OVERRIDE"})
        qunsetenv(variable);
    drawBySoftware();
}

void run(const Platform& platform, EngineLog& engineLog, const PanelParts& parts,
    const std::filesystem::path& outputDirectory, const std::string& suffix, Theme theme, DemoHome home,
    std::ostream& lines)
{
    for (const auto& screen : screens) {
        const auto contents = demoContents(theme, home);
        AudioController controller(platform, engineLog, contents);
        const auto image =
            draw(screen, screen.isExpanded ? contents.apps.front().bundleID : "", controller, parts);
        const auto file = outputDirectory / (screen.name + suffix + ".png");
        QImageWriter writer(QString::fromStdString(file.string()), "png");
        const auto size = image.deviceIndependentSize().toSize();
        if (writer.write(image))
            lines << "✅ " << file.string() << " " << size.width() << "×" << size.height() << " pt\n";
        else
            lines << "❌ " << file.string() << ": " << writer.errorString().toStdString() << "\n";
    }
}

}  // namespace fadeloom::ScreenshotRenderer
