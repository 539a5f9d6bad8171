// SPDX-License-Identifier: MIT
// The panel's views in a window, driven by a test.
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
    /// The item with this accessible name and role; null if there is none.
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
    /// A button or menu button. Qt 6.4 exposes both as buttons, later versions distinguish them.
    QQuickItem* button(const QString& name)
    {
        auto* const found = find(name, QAccessible::Button);
        return found ? found : find(name, QAccessible::ComboBox);
    }
    /// Text that can be pressed; Qt 6.4 exposes it as a button as well.
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
