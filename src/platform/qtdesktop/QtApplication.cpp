// SPDX-License-Identifier: MIT
#include "platform/qtdesktop/QtApplication.h"

#include <QApplication>
#include <QIcon>
#include <QLabel>
#include <QMessageBox>
#include <QStyleHints>

namespace fadeloom {
namespace {

QString creditsText(const AboutCredits& credits)
{
    const auto escaped = [](const std::string& text) { return QString::fromStdString(text).toHtmlEscaped(); };
    return QStringLiteral("<p align='center'>%1</p><p align='center'><a href=\"%2\">%3</a></p>")
        .arg(escaped(credits.text), escaped(credits.linkURL), escaped(credits.linkText));
}

}  // namespace

QtApplication::~QtApplication()
{
    delete about_;
}

void QtApplication::setAppearance(Appearance appearance)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    // For menus and dialogs drawn by Qt.
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

void QtApplication::showAboutPanel(const AboutCredits& credits)
{
    if (!about_) {
        about_ = new QMessageBox;
        about_->setAttribute(Qt::WA_DeleteOnClose);
        about_->setModal(false);
        about_->setWindowTitle(QStringLiteral("Fadeloom"));
        about_->setIconPixmap(QGuiApplication::windowIcon().pixmap(64));
        about_->setText(QStringLiteral("Fadeloom ") + QCoreApplication::applicationVersion());
        about_->setInformativeText(creditsText(credits));
        // The link is accessible by keyboard as well. Its colours are those of the palette, light or dark.
        for (auto* const label : about_->findChildren<QLabel*>())
            if (label->text() == about_->informativeText())
                label->setTextInteractionFlags(Qt::TextBrowserInteraction);
    }
    about_->show();
    about_->raise();
    about_->activateWindow();
}

}  // namespace fadeloom
