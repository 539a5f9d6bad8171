// SPDX-License-Identifier: MIT
// A Qt application that needs no display.
#pragma once

#include <QApplication>
#include <QQuickWindow>

namespace fadeloom {

/// One per process.
class OffscreenApplication {
public:
    OffscreenApplication() { QQuickWindow::setGraphicsApi(QSGRendererInterface::Software); }

private:
    static inline int count_ = 1;
    static inline char name_[] = "test";
    static inline char* arguments_[] = {name_, nullptr};

    // Before the application reads it.
    const bool isOffscreen_ = qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application_{count_, arguments_};
};

}  // namespace fadeloom
