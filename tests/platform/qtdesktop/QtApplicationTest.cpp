// SPDX-License-Identifier: MIT
#include "platform/qtdesktop/QtApplication.h"

#include "tests/platform/qtdesktop/OffscreenApplication.h"

#include <QLabel>
#include <QMessageBox>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace fadeloom {
namespace {

using ::testing::HasSubstr;

class AboutPanelWindowTest : public ::testing::Test {
protected:
    AboutPanelWindowTest() { QCoreApplication::setApplicationVersion("1.2.3"); }

    static QList<QMessageBox*> panels()
    {
        QList<QMessageBox*> found;
        for (auto* const window : QApplication::topLevelWidgets())
            if (auto* const box = qobject_cast<QMessageBox*>(window); box != nullptr && box->isVisible())
                found += box;
        return found;
    }
    static QLabel* creditsLabel()
    {
        for (auto* const label : panels().front()->findChildren<QLabel*>())
            if (label->text().contains("href"))
                return label;
        return nullptr;
    }

    const AboutCredits credits{.text = "Text", .linkText = "host", .linkURL = "https://host.example"};
    OffscreenApplication offscreen;
    std::optional<QtApplication> application{std::in_place, [](auto) { }};
};

TEST_F(AboutPanelWindowTest, showsNameVersionAndCredits)
{
    application->showAboutPanel(
        {.text = "Loud & <clear>.", .linkText = "host.example", .linkURL = "https://host.example/?a=\"b\""});

    ASSERT_EQ(panels().size(), 1);
    EXPECT_EQ(panels().front()->text().toStdString(), "Fadeloom 1.2.3");
    ASSERT_NE(creditsLabel(), nullptr);
    EXPECT_THAT(creditsLabel()->text().toStdString(), HasSubstr("Loud &amp; &lt;clear&gt;."));
    EXPECT_THAT(creditsLabel()->text().toStdString(),
        HasSubstr("<a href=\"https://host.example/?a=&quot;b&quot;\">host.example</a>"));
}

TEST_F(AboutPanelWindowTest, itsLinkOpensByMouseAndKeyboard)
{
    application->showAboutPanel(credits);

    ASSERT_NE(creditsLabel(), nullptr);
    EXPECT_TRUE(creditsLabel()->openExternalLinks());
    EXPECT_TRUE(creditsLabel()->textInteractionFlags().testFlag(Qt::LinksAccessibleByMouse));
    EXPECT_TRUE(creditsLabel()->textInteractionFlags().testFlag(Qt::LinksAccessibleByKeyboard));
}

TEST_F(AboutPanelWindowTest, isReadableOnADarkDesktop)
{
    auto dark = QApplication::palette();
    dark.setColor(QPalette::Window, Qt::black);
    dark.setColor(QPalette::WindowText, Qt::white);
    QApplication::setPalette(dark);

    application->showAboutPanel(credits);

    ASSERT_NE(creditsLabel(), nullptr);
    EXPECT_EQ(creditsLabel()->palette().color(creditsLabel()->foregroundRole()), QColor(Qt::white));
    EXPECT_FALSE(creditsLabel()->text().contains("color"));
}

TEST_F(AboutPanelWindowTest, opensOnlyOnce)
{
    application->showAboutPanel(credits);
    application->showAboutPanel(credits);

    EXPECT_EQ(panels().size(), 1);
    EXPECT_FALSE(panels().front()->isModal());
}

TEST_F(AboutPanelWindowTest, reopensAfterItWasClosed)
{
    application->showAboutPanel(credits);
    panels().front()->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(panels().isEmpty());

    application->showAboutPanel(credits);

    EXPECT_EQ(panels().size(), 1);
}

TEST_F(AboutPanelWindowTest, closesWithTheProgram)
{
    application->showAboutPanel(credits);

    application.reset();

    EXPECT_TRUE(panels().isEmpty());
}

}  // namespace
}  // namespace fadeloom
