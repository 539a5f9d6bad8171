// SPDX-License-Identifier: MIT
#include "app/PanelServices.h"

#include "app/Version.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QProcess>
#include <QSettings>
#include <QStandardPaths>
#include <QUrl>

#include <utility>

namespace fadeloom {
namespace {

const QString languageKey = QStringLiteral("language");
const QString systemLanguage = QStringLiteral("system");

}  // namespace

PanelServices::PanelServices(Desktop desktop, const std::filesystem::path& preferences)
    : desktop_(std::move(desktop))
    , preferences_(preferences)
{
}

PanelServices::~PanelServices()
{
    delete about_;
    delete applications_;
}

std::string PanelServices::version() const
{
    return std::string(programVersion());
}

void PanelServices::openAboutPanel()
{
    if (!about_) {
        about_ = new QMessageBox;
        about_->setAttribute(Qt::WA_DeleteOnClose);
        about_->setWindowTitle(QStringLiteral("Fadeloom"));
        about_->setText(QStringLiteral("Fadeloom %1").arg(QString::fromStdString(version())));
        about_->setTextFormat(Qt::RichText);
        about_->setTextInteractionFlags(Qt::TextBrowserInteraction);
        const auto credits = QCoreApplication::translate(
            "AboutPanel", "Free per-app volume, output routing, equalizer and recording for Linux.");
        about_->setInformativeText(
            QStringLiteral("<p align='center'>%1</p><p align='center'><a href='%2'>%3</a></p>")
                .arg(credits.toHtmlEscaped(), QStringLiteral(FADELOOM_WEB_PAGE),
                    QString::fromStdString(webPageHost())));
    }
    about_->show();
    about_->raise();
    about_->activateWindow();
}

std::string PanelServices::webPageHost() const
{
    return QUrl(QStringLiteral(FADELOOM_WEB_PAGE)).host().toStdString();
}

void PanelServices::openWebPage()
{
    QDesktopServices::openUrl(QUrl(QStringLiteral(FADELOOM_WEB_PAGE)));
}

std::string PanelServices::language() const
{
    const QSettings file(QFile::decodeName(preferences_.c_str()), QSettings::IniFormat);
    const auto code = file.value(languageKey, systemLanguage).toString();
    return code == QLatin1String("en") || code == QLatin1String("pl") ? code.toStdString()
                                                                      : systemLanguage.toStdString();
}

void PanelServices::setLanguage(const std::string& code)
{
    QSettings file(QFile::decodeName(preferences_.c_str()), QSettings::IniFormat);
    const auto wanted = QString::fromStdString(code);
    if (wanted == systemLanguage)
        file.remove(languageKey);
    else
        file.setValue(languageKey, wanted);
}

// Also when the new instance could not be started: the user asked for the end of this one.
void PanelServices::restart()
{
    QProcess::startDetached(QCoreApplication::applicationFilePath(), QCoreApplication::arguments().mid(1));
    desktop_.quit();
}

void PanelServices::chooseApplication(std::function<void(const std::string&)> chosen)
{
    if (applications_)
        applications_->reject();
    applications_ = new QFileDialog;
    applications_->setAttribute(Qt::WA_DeleteOnClose);
    applications_->setFileMode(QFileDialog::ExistingFile);
    applications_->setNameFilter(QStringLiteral("*.desktop"));
    const auto folders = QStandardPaths::standardLocations(QStandardPaths::ApplicationsLocation);
    if (!folders.isEmpty())
        applications_->setDirectory(folders.back());
    QObject::connect(applications_, &QFileDialog::fileSelected, applications_,
        [chosen = std::move(chosen)](
            const QString& file) { chosen(QFileInfo(file).completeBaseName().toStdString()); });
    applications_->open();
}

}  // namespace fadeloom
