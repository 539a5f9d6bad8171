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
    const char* expandedApp;
    bool showsSettings;
};
constexpr std::array screens = {
    Screen{"panel", "", false}, Screen{"eq", "com.apple.Music", false}, Screen{"settings", "", true}};

QImage draw(const Screen& screen, AudioController& controller, const Platform& platform, PanelHost& host)
{
    PanelModel panel(controller, platform, host);
    panel.setShowsSettings(screen.showsSettings);
    PanelEngine engine;
    const auto view = engine.makeRootView(panel, QString::fromLatin1(screen.expandedApp));
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

void run(const Platform& platform, EngineLog& engineLog, PanelHost& host,
    const std::filesystem::path& outputDirectory, const std::string& suffix, Theme look, std::ostream& lines)
{
    for (const auto& screen : screens) {
        AudioController controller(platform, engineLog, demoContents(look));
        const auto image = draw(screen, controller, platform, host);
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
