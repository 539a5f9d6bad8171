// SPDX-License-Identifier: MIT
#include "platform/qtdesktop/QtApplication.h"

#include <QGuiApplication>
#include <QStyleHints>

namespace fadeloom {

void QtApplication::setAppearance(Appearance appearance)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    // The menus and dialogs that Qt draws itself.
    auto* const hints = QGuiApplication::styleHints();
    switch (appearance) {
    case Appearance::light:
        hints->setColorScheme(Qt::ColorScheme::Light);
        break;
    case Appearance::dark:
        hints->setColorScheme(Qt::ColorScheme::Dark);
        break;
    case Appearance::system:
        hints->unsetColorScheme();
        break;
    }
#endif
    changed_(appearance);
}

}  // namespace fadeloom
