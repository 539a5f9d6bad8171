// SPDX-License-Identifier: MIT
// Makes the panel's view: an engine that knows our types, symbols, icons and fonts, and the root view in it.
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

    /// The root view on `panel`, which must outlive it; put it into a window. `expandedApp` is the bundle identifier of
    /// the row that is open from the start. Its implicit height follows what it shows; a window follows that. Null after
    /// a fault in a view, which is then told on the message log.
    [[nodiscard]] std::unique_ptr<QQuickItem> makeRootView(
        PanelModel& panel, const QString& expandedApp = {});

private:
    QQmlEngine engine_;
};

/// Draws every window by the processor, as the panel wants it on Linux. Before the first window.
void drawBySoftware();

}  // namespace fadeloom
