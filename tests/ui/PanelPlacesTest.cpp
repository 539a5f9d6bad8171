// SPDX-License-Identifier: MIT
// The layout of the views, and their accessibility: nothing overlaps or is out of sight.
#include "tests/ui/PanelStage.h"

namespace fadeloom {
namespace {

class PanelPlacesTest : public PanelStage {
protected:
    /// The first item of a class, by its C++ class name or QML file name.
    QQuickItem* ofClass(const char* name, QQuickItem* in)
    {
        for (auto* const child : in->childItems()) {
            if (QString::fromLatin1(child->metaObject()->className()).startsWith(QLatin1String(name)))
                return child;
            if (auto* const found = ofClass(name, child))
                return found;
        }
        return nullptr;
    }
    /// An open tooltip; null without one.
    QQuickItem* bubble()
    {
        auto* const overlay = ofClass("QQuickOverlay", window->contentItem());
        return overlay ? ofClass("QQuickPopupItem", overlay) : nullptr;
    }
    void expectTheHintToHoldItsWords(QQuickItem* item)
    {
        ASSERT_TRUE(item);
        QTest::mouseMove(window.get(), {1, 1});
        QTest::mouseMove(window.get(), at(item, item->width() / 2, item->height() / 2));
        ASSERT_TRUE(QTest::qWaitFor([&] { return bubble() != nullptr; }, 3000));
        QTest::qWait(20);
        auto* const words = ofClass("Label", bubble());
        ASSERT_TRUE(words);

        EXPECT_GE(words->property("contentHeight").toDouble(), 13);
        EXPECT_GE(words->height(), words->property("contentHeight").toDouble());
        EXPECT_NEAR(bubble()->height(), words->height() + 12, 0.5);
        EXPECT_LE(words->property("contentWidth").toDouble(), bubble()->width() - 16);
        EXPECT_LE(bubble()->mapToScene({bubble()->width(), 0}).x(), 380 - 6);
        EXPECT_GE(bubble()->mapToScene({0, 0}).x(), 6);
    }
};

TEST_F(PanelPlacesTest, aSingleLineTooltipFitsItsText)
{
    show(demoContents(Theme::dark));

    expectTheHintToHoldItsWords(button("Settings"));
}

TEST_F(PanelPlacesTest, aTwoLineTooltipFitsItsText)
{
    show(demoContents(Theme::dark), musicID);

    expectTheHintToHoldItsWords(button("Start"));
}

TEST_F(PanelPlacesTest, aDoubleClickOnABandStaysWhenTheHandShakes)
{
    show(demoContents(Theme::dark), musicID);
    auto* const band = slider("1k hertz");
    ASSERT_TRUE(band);
    const QPointF place = at(band, 16, 20);
    const auto send = [&](QEvent::Type type, QPointF position, Qt::MouseButtons buttons) {
        QMouseEvent event(type, position, window->mapToGlobal(position), Qt::LeftButton, buttons, {});
        QCoreApplication::sendEvent(window.get(), &event);
    };

    send(QEvent::MouseButtonPress, place, Qt::LeftButton);
    send(QEvent::MouseButtonRelease, place, {});
    ASSERT_NE(music().eqGains.at(5), 0);
    send(QEvent::MouseButtonPress, place, Qt::LeftButton);
    send(QEvent::MouseButtonDblClick, place, Qt::LeftButton);
    send(QEvent::MouseMove, place + QPointF(0, 1), Qt::LeftButton);
    send(QEvent::MouseButtonRelease, place + QPointF(0, 1), {});
    EXPECT_EQ(music().eqGains.at(5), 0);

    send(QEvent::MouseButtonPress, place, Qt::LeftButton);
    send(QEvent::MouseMove, at(band, 16, 1), Qt::LeftButton);
    send(QEvent::MouseButtonRelease, at(band, 16, 1), {});
    EXPECT_EQ(music().eqGains.at(5), 12);
}

TEST_F(PanelPlacesTest, theFieldForAPresetsNameComesIntoSightInEveryRow)
{
    auto contents = demoContents(Theme::dark);
    for (int i = 0; i < 3; ++i)
        contents.apps.push_back({.bundleID = "app" + std::to_string(i), .name = "App " + std::to_string(i)});
    for (const auto& app : contents.apps) {
        show(contents, QString::fromStdString(app.bundleID));
        QTest::qWait(20);
        auto* const section = ofClass("EQSection", view.get());
        ASSERT_TRUE(section);

        QMetaObject::invokeMethod(section, "startNaming");
        QTest::qWait(20);

        auto* const field = find("Preset name", QAccessible::EditableText);
        ASSERT_TRUE(field) << app.name;
        EXPECT_TRUE(field->hasActiveFocus());
        auto* const area = ofClass("AppList", view.get());
        ASSERT_TRUE(area);
        EXPECT_GE(field->mapToItem(area, {0, 0}).y(), 0) << app.name;
        EXPECT_LE(field->mapToItem(area, {0, field->height()}).y(), area->height()) << app.name;
        view.reset();
        window.reset();
    }
}

TEST_F(PanelPlacesTest, aLongVersionLeavesSpaceForTheOtherButtons)
{
    show(demoContents(Theme::dark));
    const std::string version(80, '9');

    demo->around.publish(version);
    QTest::qWait(1);

    auto* const update = button(QStringLiteral("Update ") + QString::fromStdString(version));
    ASSERT_TRUE(update);
    EXPECT_LE(update->mapToScene({update->width(), 0}).x(), button("Settings")->mapToScene({0, 0}).x() - 4);
    EXPECT_LE(button("Quit Fadeloom")->mapToScene({button("Quit Fadeloom")->width(), 0}).x(), 380);
    auto* const words = ofClass("Label", update);
    ASSERT_TRUE(words);
    const auto rightOf = [](QQuickItem* item) { return item->mapToScene({item->width(), 0}).x(); };
    // A row positions its items when it is about to be rendered.
    EXPECT_TRUE(QTest::qWaitFor([&] { return rightOf(words) <= rightOf(update); }, 2000));
}

TEST_F(PanelPlacesTest, aFaderSaysPercentAndABandDecibels)
{
    auto contents = demoContents(Theme::dark);
    contents.settings.volumeLimit = 1.5F;
    show(contents, musicID);
    const auto values = [&](const QString& name) {
        return QAccessible::queryAccessibleInterface(slider(name))->valueInterface();
    };

    EXPECT_EQ(values("Music volume")->currentValue().toDouble(), 85);
    EXPECT_EQ(values("Music volume")->minimumValue().toDouble(), 0);
    EXPECT_EQ(values("Music volume")->maximumValue().toDouble(), 150);
    EXPECT_EQ(values("1k hertz")->currentValue().toDouble(), music().eqGains.at(5));
    EXPECT_EQ(values("1k hertz")->minimumValue().toDouble(), -12);
    EXPECT_EQ(values("Preamp")->currentValue().toDouble(), -2);
    demo->panel.setShowsSettings(true);
    EXPECT_EQ(values("Lower to")->currentValue().toDouble(), 20);
    EXPECT_EQ(values("Lower to")->maximumValue().toDouble(), 50);
}

}  // namespace
}  // namespace fadeloom
