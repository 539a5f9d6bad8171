// SPDX-License-Identifier: MIT
// Draws the panel in many states, for eyes to judge:
//
//   cmake --build --preset dev --target pictures      draws into build/pictures
#include "tests/ui/DemoPanel.h"
#include "ui/PanelEngine.h"
#include "ui/PanelPicture.h"

#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QQuickItem>
#include <QTranslator>

#include <cstdio>
#include <functional>
#include <optional>
#include <string>
#include <vector>

using namespace fadeloom;

namespace {

std::string recordingsFolder()
{
    return QDir::home().filePath("Music/Fadeloom Recordings").toStdString();
}

// A controller that lives: what cannot be given as fixed contents has to happen.
struct LivePanel {
    explicit LivePanel(Theme theme)
        : theme_(theme)
    {
        world.plug({.uid = "speakers", .name = "Desk Speakers"});
        world.plug({.uid = "headphones", .name = "Headphones"});
    }
    void start()
    {
        controller.emplace(world.platform(), engineLog, "1.0");
        panel.emplace(*controller, around.parts());
        controller->editSettings([&](auto& settings) {
            settings.appearance.theme = theme_;
            settings.appearance.animations = false;
            settings.focus.callApps = {"com.example.phone"};
            settings.recordingsFolder = recordingsFolder();
        });
    }
    ProcessID play(const std::string& name)
    {
        const auto pid = world.launchApp(name);
        world.startPlaying(pid);
        world.advance(std::chrono::seconds(1));
        return pid;
    }

    TemporaryFolder folder;
    SimulatedPlatform world{folder.path()};
    EngineLog engineLog{world.systemLog(), world.platform().logQueue, folder.path() / "Fadeloom"};
    DemoParts around{world};
    std::optional<AudioController> controller;
    std::optional<PanelModel> panel;

private:
    Theme theme_;
};

struct Story {
    QString name;
    std::function<void(LivePanel&)> happens;
    QString expandedApp = {};
};

struct Scene {
    QString name;
    std::function<void(DemoContents&)> contents = [](auto&) { };
    std::function<void(DemoPanel&)> events = [](auto&) { };
    QString expandedApp = {};
    std::function<void(QQuickItem&, QQuickItem&)> interact = {};
};

QQuickItem* find(
    QQuickItem& root, const char* type, const char* property = nullptr, const QVariant& value = {})
{
    for (auto* const child : root.childItems()) {
        if (QString::fromLatin1(child->metaObject()->className()).startsWith(QLatin1String(type))
            && (!property || child->property(property) == value))
            return child;
        if (auto* const found = find(*child, type, property, value))
            return found;
    }
    return nullptr;
}

void save(QImage image, const QString& name, const QString& folder)
{
    const auto file = QDir(folder).filePath(name + QStringLiteral(".png"));
    std::printf("%s %s\n", image.save(file) ? "drawn" : "FAILED", qUtf8Printable(file));
}

void draw(PanelModel& panel, const QString& expandedApp, const QString& name, const QString& folder,
    const std::function<void(QQuickItem&, QQuickItem&)>& interact)
{
    PanelEngine engine;
    const auto view = engine.makeRootView(panel, expandedApp);
    if (!view)
        return;
    view->setProperty("limitsSettings", false);
    save(pictureOf(*view,
             [&](QQuickItem& root) {
                 if (interact)
                     interact(*view, root);
             }),
        name, folder);
}

void draw(const Scene& scene, Theme theme, const QString& folder, const QString& suffix)
{
    auto contents = demoContents(theme);
    contents.settings.appearance.animations = false;
    contents.settings.recordingsFolder = recordingsFolder();
    scene.contents(contents);
    DemoPanel demo(contents);
    scene.events(demo);
    draw(demo.panel, scene.expandedApp, scene.name + suffix, folder, scene.interact);
}

void draw(const Story& story, Theme theme, const QString& folder, const QString& suffix)
{
    LivePanel live(theme);
    story.happens(live);
    draw(*live.panel, story.expandedApp, story.name + suffix, folder, {});
}

std::vector<Story> stories()
{
    using namespace std::chrono_literals;
    return {
        {"undecided",
            [](auto& live) {
                live.world.setPermission(SimulatedCapturePermission::undecided);
                live.start();
            }},
        {"denied",
            [](auto& live) {
                live.world.setPermission(SimulatedCapturePermission::denied);
                live.start();
            }},
        {"call",
            [](auto& live) {
                live.start();
                live.play("Player");
                live.world.startUsingMic(live.play("Phone"));
                live.world.advance(5s);
            }},
        {"faults",
            [](auto& live) {
                live.start();
                live.play("Player");
                live.controller->editApp(
                    "com.example.player", [](auto& app) { app.outputUID = "headphones"; });
                live.world.unplug("headphones");
                live.world.advance(1s);
                live.world.refuse(AudioOperation::createTap, HowOften::always);
                live.play("Radio");
            }},
        {"recording",
            [](auto& live) {
                live.start();
                live.play("Player");
                live.controller->startRecording("com.example.player");
                live.world.advance(67s);
            },
            "com.example.player"},
        {"recorded",
            [](auto& live) {
                live.start();
                live.play("Player");
                live.controller->startRecording("com.example.player");
                live.world.advance(7s);
                live.controller->stopRecording("com.example.player");
                live.world.advance(1s);
            }},
        {"restart",
            [](auto& live) {
                live.start();
                live.panel->setShowsSettings(true);
                live.panel->settings()->chooseLanguage("pl");
                live.panel->settings()->chooseVolumeLimit("2");
            }},
    };
}

AppEntry player(int number)
{
    const auto name = "Player " + std::to_string(number);
    return {.bundleID = "com.example.player" + std::to_string(number), .name = name, .isPlaying = number < 4};
}

std::vector<Scene> scenes()
{
    const auto music = QStringLiteral("com.apple.Music");
    return {
        {.name = "mixer"},
        {.name = "eq", .expandedApp = music},
        {.name = "settings", .events = [](auto& demo) { demo.panel.setShowsSettings(true); }},
        {.name = "empty",
            .contents = [](auto& contents) { contents.apps.clear(); },
            .events = [](auto& demo) { demo.around.publish("1.1"); }},
        {.name = "many",
            .contents =
                [](auto& contents) {
                    contents.apps.clear();
                    for (int i = 1; i <= 12; ++i)
                        contents.apps.push_back(player(i));
                }},
        {.name = "longnames",
            .contents =
                [](auto& contents) {
                    contents.apps.at(0).name =
                        "A player whose name is so long that it has to end somewhere before";
                    contents.apps.at(0).icon = {};
                    contents.devices.at(0).name =
                        "A device with a name that is far longer than the panel is wide";
                    contents.devices.at(2).name = contents.devices.at(0).name;
                },
            .expandedApp = music},
        {.name = "boost",
            .contents =
                [](auto& contents) {
                    contents.settings.volumeLimit = 1.5F;
                    contents.settings.apps["com.apple.Music"].volume = 1.25F;
                    contents.settings.appearance.glass = false;
                }},
        {.name = "largetext", .events = [](auto& demo) { demo.panel.setDesktopLook({.textScale = 1.5}); }},
        {.name = "contrast",
            .events =
                [](auto& demo) { demo.panel.setDesktopLook({.hasHighContrast = true, .accent = 0xE66100}); }},
        {.name = "nometers",
            .contents = [](auto& contents) { contents.settings.appearance.levelMeters = false; }},
        {.name = "error",
            .events = [](auto& demo) { demo.controller.saveUserPreset("Rock", "com.apple.Music"); }},
        {.name = "naming",
            .contents = [](auto& contents) { contents.settings.apps.clear(); },
            .expandedApp = music,
            .interact =
                [](QQuickItem& view, QQuickItem&) {
                    if (auto* const section = find(view, "EQSection"))
                        QMetaObject::invokeMethod(section, "startNaming");
                }},
        {.name = "presets",
            .contents =
                [](auto& contents) {
                    contents.settings.userPresets = {{"Evening", std::vector<float>(10, 1)}};
                },
            .expandedApp = music,
            .interact =
                [](QQuickItem& view, QQuickItem&) {
                    if (auto* const menu = find(view, "PresetMenu"))
                        QMetaObject::invokeMethod(menu, "clicked");
                }},
        {.name = "outputs",
            .interact =
                [](QQuickItem& view, QQuickItem&) {
                    if (auto* const menu = find(view, "MenuLabel"))
                        QMetaObject::invokeMethod(menu, "clicked");
                }},
    };
}

}  // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_SCALE_FACTOR", "2");
    drawBySoftware();
    const QGuiApplication application(argc, argv);
    const QString folder = QString::fromLocal8Bit(argc > 1 ? argv[1] : "build/pictures");
    QDir().mkpath(folder);
    for (const auto* const language : {"en", "pl"}) {
        QTranslator translator;
        if (translator.load(QStringLiteral(":/i18n/fadeloom_%1.qm").arg(QLatin1String(language))))
            QCoreApplication::installTranslator(&translator);
        for (const auto theme : {Theme::dark, Theme::light}) {
            const auto suffix =
                QLatin1String(theme == Theme::dark ? "-dark-" : "-light-") + QLatin1String(language);
            for (const auto& scene : scenes())
                draw(scene, theme, folder, suffix);
            for (const auto& story : stories())
                draw(story, theme, folder, suffix);
        }
    }
    return 0;
}
