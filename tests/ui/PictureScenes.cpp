// SPDX-License-Identifier: MIT
#include "tests/ui/PictureScenes.h"

#include "tests/ui/DemoPanel.h"
#include "tests/ui/LivePanel.h"
#include "ui/PanelEngine.h"
#include "ui/PanelPicture.h"

#include <QDir>
#include <QQuickItem>

#include <chrono>
#include <string>
#include <utility>

namespace fadeloom {
namespace {

std::string recordingsFolder()
{
    return QDir::home().filePath("Music/Fadeloom Recordings").toStdString();
}

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

QImage draw(PanelModel& panel, const QString& expandedApp, double scale,
    const std::function<void(QQuickItem&, QQuickItem&)>& interact)
{
    PanelEngine engine;
    const auto view = engine.makeRootView(panel, expandedApp);
    if (!view)
        return {};
    view->setProperty("limitsSettings", false);
    std::function<void(QQuickItem&)> interactWithView;
    if (interact)
        interactWithView = [&](QQuickItem& root) { interact(*view, root); };
    return pictureOf(*view, interactWithView, scale);
}

QImage draw(const Scene& scene, Theme theme, double scale)
{
    auto contents = demoContents(theme);
    contents.settings.appearance.animations = false;
    contents.settings.recordingsFolder = recordingsFolder();
    scene.contents(contents);
    DemoPanel demo(contents);
    scene.events(demo);
    return draw(demo.panel, scene.expandedApp, scale, scene.interact);
}

QImage draw(const Story& story, Theme theme, double scale)
{
    LivePanel live([theme](SettingsData& settings) {
        settings.appearance.theme = theme;
        settings.recordingsFolder = recordingsFolder();
    });
    story.happens(live);
    return draw(*live.panel, story.expandedApp, scale, {});
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
        {.name = "largetext",
            .events = [](auto& demo) { demo.panel.setDesktopAppearance({.textScale = 1.5}); }},
        {.name = "contrast",
            .events =
                [](auto& demo) {
                    demo.panel.setDesktopAppearance({.hasHighContrast = true, .accent = 0xE66100});
                }},
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
        {.name = "hint",
            .expandedApp = music,
            .interact =
                [](QQuickItem& view, QQuickItem&) {
                    auto* const row = find(view, "RecordRow");
                    auto* const hint = row ? find(*row, "Hint") : nullptr;
                    if (auto* const bubble = hint ? find(*hint, "QQuickLoader") : nullptr)
                        bubble->setProperty("active", true);
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

std::vector<PictureScene> pictureScenes()
{
    std::vector<PictureScene> all;
    for (auto& scene : scenes())
        all.push_back({scene.name, [scene](Theme theme, double scale) { return draw(scene, theme, scale); }});
    for (auto& story : stories())
        all.push_back({story.name, [story](Theme theme, double scale) { return draw(story, theme, scale); }});
    return all;
}

}  // namespace fadeloom
