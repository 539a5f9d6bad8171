// SPDX-License-Identifier: MIT
#include "ui/ScreenshotRenderer.h"
#include "log/EngineLog.h"
#include "platform/simulated/SimulatedPlatform.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/ui/DemoParts.h"
#include "tests/ui/PanelTest.h"

#include <QImage>

#include <algorithm>
#include <filesystem>
#include <sstream>

namespace fadeloom {
namespace {

class ScreenshotRendererTest : public PanelTest {
protected:
    std::string render(const std::filesystem::path& output, const std::string& suffix, Theme theme)
    {
        std::ostringstream lines;
        ScreenshotRenderer::run(
            world.platform(), engineLog, around.parts(), output, suffix, theme, home, lines);
        return lines.str();
    }
    QImage picture(const std::string& name)
    {
        return QImage(QString::fromStdString((folder.path() / name).string()));
    }

    TemporaryFolder folder;
    SimulatedPlatform world{folder.path()};
    EngineLog engineLog{world.systemLog(), world.platform().logQueue, folder.path() / "Fadeloom"};
    DemoParts around{world};
    DemoHome home = DemoHome::ofMacOS;
};

TEST_F(ScreenshotRendererTest, drawsThreeScreensAtTwiceTheirSize)
{
    const auto lines = render(folder.path(), "de", Theme::dark);

    EXPECT_EQ(
        lines.substr(0, lines.find('\n')), "✅ " + (folder.path() / "panelde.png").string() + " 380×465 pt");
    EXPECT_EQ(picture("panelde.png").size(), QSize(760, 930));
    EXPECT_EQ(picture("eqde.png").size(), QSize(760, 1092));
    EXPECT_GT(picture("settingsde.png").height(), 2000);
}

TEST_F(ScreenshotRendererTest, eachHomeShowsItsOwnAppsAndDevices)
{
    const auto ofMacOS = demoContents(Theme::dark, DemoHome::ofMacOS);
    const auto ofLinux = demoContents(Theme::dark, DemoHome::ofLinux);
    EXPECT_EQ(ofMacOS.devices.front().name, "MacBook Pro Speakers");
    EXPECT_EQ(ofLinux.devices.front().name, "Built-in Audio");
    for (const auto& app : ofLinux.apps)
        EXPECT_FALSE(app.bundleID.starts_with("com.apple.")) << app.bundleID;
    for (const auto& id : ofLinux.settings.focus.callApps)
        EXPECT_TRUE(ofLinux.settings.knownAppNames.contains(id)) << id;

    render(folder.path(), "-macos", Theme::dark);
    home = DemoHome::ofLinux;
    render(folder.path(), "-linux", Theme::dark);

    for (const auto* const screen : {"panel", "eq", "settings"})
        EXPECT_NE(picture(std::string(screen) + "-macos.png"), picture(std::string(screen) + "-linux.png"));
    EXPECT_EQ(picture("eq-linux.png").size(), QSize(760, 1092));
}

TEST_F(ScreenshotRendererTest, theTwoLooksDiffer)
{
    render(folder.path(), "-dark", Theme::dark);
    render(folder.path(), "-light", Theme::light);

    const QPoint ground(20, 70);
    EXPECT_LT(picture("panel-dark.png").pixelColor(ground).lightness(), 60);
    EXPECT_GT(picture("panel-light.png").pixelColor(ground).lightness(), 200);
}

TEST_F(ScreenshotRendererTest, aMissingFolderIsReportedThreeTimes)
{
    const auto lines = render(folder.path() / "nowhere", "", Theme::dark);

    EXPECT_EQ(std::ranges::count(lines, '\n'), 3);
    EXPECT_EQ(lines.find("✅"), std::string::npos);
    EXPECT_EQ(lines.rfind("❌ ", 0), 0U);
}

}  // namespace
}  // namespace fadeloom
