// SPDX-License-Identifier: MIT
// The program's desktop and panel on macOS, assembled as in the program, with Qt's windows on an offscreen display.
#include "app/macos/HomeDesktop.h"
#include "app/macos/HomePanel.h"
#include "tests/macos/DesktopStage.h"

#include <QApplication>
#include <QKeyEvent>
#include <QQuickWindow>

namespace fadeloom {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::SizeIs;

class MacOSHomeDesktop : public DesktopStage {
protected:
    MacOSHomeDesktop() { home.emplace(); }

    /// A panel with content of this size, created on demand.
    void makePanel()
    {
        panel.emplace(*home);
        panel->setContent([this] {
            auto item = std::make_unique<QQuickItem>();
            item->setSize({380, 520});
            content = item.get();
            return item;
        });
    }
    static NSSize popoverSize() { return doubles::lastPopover().contentSize; }

    int argumentCount = 1;
    char name[9] = "fadeloom";
    char* arguments[2] = {name, nullptr};
    std::optional<QApplication> application = [this] {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
        return std::optional<QApplication>(std::in_place, argumentCount, arguments);
    }();
    std::optional<HomeDesktop> home;
    std::optional<HomePanel> panel;
    QQuickItem* content = nullptr;
};

TEST_F(MacOSHomeDesktop, showsItsIconBeforeThePanelIsMade)
{
    makePanel();
    home->icon().show("Fadeloom");

    EXPECT_THAT(done(), Contains("square item"));
    EXPECT_EQ(content, nullptr);
    panel->popover().show();
    EXPECT_NE(content, nullptr);
    panel.reset();
}

TEST_F(MacOSHomeDesktop, givesThePopoverTheSizeOfItsContent)
{
    home->icon().show("Fadeloom");
    makePanel();
    panel->popover().show();
    EXPECT_EQ(popoverSize().width, 380);
    EXPECT_EQ(popoverSize().height, 520);

    content->setHeight(600);  // A row has expanded.
    for (int turn = 0; turn < 1000 && popoverSize().height != 600; ++turn)
        QCoreApplication::processEvents();

    EXPECT_EQ(popoverSize().height, 600);
    panel.reset();
}

TEST_F(MacOSHomeDesktop, closesItsPanelWithEscape)
{
    home->icon().show("Fadeloom");
    makePanel();
    panel->popover().show();
    ASSERT_THAT(QGuiApplication::topLevelWindows(), SizeIs(1));

    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QCoreApplication::sendEvent(QGuiApplication::topLevelWindows().first(), &escape);

    EXPECT_FALSE(panel->popover().isShown());
    panel.reset();
}

TEST_F(MacOSHomeDesktop, reportsTheAppearanceAndTheEndOfTheSession)
{
    std::vector<std::string> told;
    home->whenAppearanceChanges([&](const DesktopAppearance& appearance) {
        told.emplace_back(appearance.isDark ? "dark" : "light");
    });
    home->whenSessionEnds([&] { told.emplace_back("session ends"); });
    EXPECT_FALSE(home->appearance().isDark);

    DesktopStage::application().systemAppearance = [NSAppearance appearanceNamed:NSAppearanceNameDarkAqua];
    doubles::post("workspace", NSWorkspaceWillPowerOffNotification);

    EXPECT_THAT(told, ElementsAre("dark", "session ends"));
    EXPECT_TRUE(home->appearance().isDark);
    home.reset();
    EXPECT_TRUE(desktop.observers.empty());
}

}  // namespace
}  // namespace fadeloom
