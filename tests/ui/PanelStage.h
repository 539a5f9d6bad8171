// SPDX-License-Identifier: MIT
// The panel's views in a window, under the hand of a test.
#pragma once

#include "control/AppSettings.h"
#include "tests/ui/DemoPanel.h"
#include "tests/ui/PanelTest.h"

#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

#include <memory>
#include <string>

namespace fadeloom {

class PanelStage : public PanelTest {
protected:
    void show(DemoContents contents, const QString& expandedApp = {})
    {
        contents.settings.appearance.animations = false;
        demo = std::make_unique<DemoPanel>(std::move(contents));
        show(demo->panel, expandedApp);
    }
    void show(PanelModel& panel, const QString& expandedApp = {})
    {
        engine = std::make_unique<PanelEngine>();
        view = engine->makeRootView(panel, expandedApp);
        ASSERT_TRUE(view);
        window = std::make_unique<QQuickWindow>();
        window->resize(380, 600);
        view->setParentItem(window->contentItem());
        window->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
        window->requestActivate();
        QTest::qWait(1);
    }
    ~PanelStage() override
    {
        view.reset();
        window.reset();
    }

    static QString nameOf(QQuickItem* item)
    {
        auto* const interface = QAccessible::queryAccessibleInterface(item);
        return interface ? interface->text(QAccessible::Name) : QString();
    }
    /// The item that assistive programs know by this name and role; null without one.
    QQuickItem* find(const QString& name, QAccessible::Role role, QQuickItem* in = nullptr)
    {
        for (auto* const child : (in ? in : view.get())->childItems()) {
            if (!child->isVisible())
                continue;
            auto* const interface = QAccessible::queryAccessibleInterface(child);
            if (interface && interface->role() == role && nameOf(child) == name)
                return child;
            if (auto* const found = find(name, role, child))
                return found;
        }
        return nullptr;
    }
    /// A button, also one that opens a menu. Qt 6.4 calls both buttons, later ones know more.
    QQuickItem* button(const QString& name)
    {
        auto* const found = find(name, QAccessible::Button);
        return found ? found : find(name, QAccessible::ComboBox);
    }
    /// Words that can be pressed; Qt 6.4 calls them a button as well.
    QQuickItem* link(const QString& name)
    {
        auto* const found = find(name, QAccessible::Link);
        return found ? found : find(name, QAccessible::Button);
    }
    QQuickItem* slider(const QString& name) { return find(name, QAccessible::Slider); }
    bool isSeen(const QString& text) { return find(text, QAccessible::StaticText) != nullptr; }

    QPoint at(QQuickItem* item, double x, double y) { return item->mapToScene({x, y}).toPoint(); }
    void click(QQuickItem* item)
    {
        ASSERT_TRUE(item);
        QTest::mouseClick(window.get(), Qt::LeftButton, {}, at(item, item->width() / 2, item->height() / 2));
    }
    void doubleClick(QQuickItem* item)
    {
        ASSERT_TRUE(item);
        const auto place = at(item, item->width() / 2, item->height() / 2);
        QTest::mouseDClick(window.get(), Qt::LeftButton, {}, place);
    }
    void press(QQuickItem* item)
    {
        ASSERT_TRUE(item);
        auto* const actions = QAccessible::queryAccessibleInterface(item)->actionInterface();
        ASSERT_TRUE(actions);
        actions->doAction(QAccessibleActionInterface::pressAction());
    }
    AppAudioSettings music() { return appSettings(*demo->controller.state().settings, "com.apple.Music"); }

    const QString musicID = QStringLiteral("com.apple.Music");
    std::unique_ptr<DemoPanel> demo;
    std::unique_ptr<PanelEngine> engine;
    std::unique_ptr<QQuickWindow> window;
    std::unique_ptr<QQuickItem> view;
};

}  // namespace fadeloom
