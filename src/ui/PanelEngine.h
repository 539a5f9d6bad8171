// SPDX-License-Identifier: MIT
// Creates the panel's view: an engine with our types, symbols, icons and fonts, and the root view in it.
#pragma once

#include <QQmlEngine>
#include <QString>

#include <memory>

class QQuickItem;

namespace fadeloom {

class PanelModel;

/// Thread: main. Needs a QGuiApplication.
class PanelEngine {
public:
    PanelEngine();
    PanelEngine(const PanelEngine&) = delete;
    PanelEngine& operator=(const PanelEngine&) = delete;

    /// The root view of `panel`, which must outlive it; put it into a window. `expandedApp`: bundle identifier of the
    /// row that is initially expanded. Its implicit height follows its contents; the window must follow that. Null
    /// after an error in a view, which is logged.
    [[nodiscard]] std::unique_ptr<QQuickItem> makeRootView(
        PanelModel& panel, const QString& expandedApp = {});

private:
    QQmlEngine engine_;
};

/// Selects software rendering for all windows, as the panel needs on Linux. Call before creating the first window.
void drawBySoftware();

}  // namespace fadeloom
