// SPDX-License-Identifier: MIT
#include "platform/qtdesktop/QtDialogs.h"

#include "platform/qtdesktop/DesktopID.h"

#include <QFile>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QStandardPaths>

#include <utility>

namespace fadeloom {

QtDialogs::~QtDialogs()
{
    delete folderDialog_;
    delete applicationDialog_;
    delete alert_;
}

void QtDialogs::chooseFolder(const std::filesystem::path& start, const std::string& prompt, FolderChosen done)
{
    if (folderDialog_)
        folderDialog_->reject();
    auto* const dialog = new QFileDialog;
    folderDialog_ = dialog;
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::Directory);
    dialog->setOption(QFileDialog::ShowDirsOnly);
    dialog->setDirectory(QFile::decodeName(start.c_str()));
    dialog->setLabelText(QFileDialog::Accept, QString::fromStdString(prompt));
    QObject::connect(dialog, &QDialog::finished, dialog, [dialog, done = std::move(done)](int result) {
        const auto files = dialog->selectedFiles();
        if (result == QDialog::Accepted && !files.isEmpty())
            done(std::filesystem::path(QFile::encodeName(files.front()).toStdString()));
        else
            done(std::nullopt);
    });
    dialog->open();
}

void QtDialogs::chooseApplication(ApplicationChosen done)
{
    if (applicationDialog_)
        applicationDialog_->reject();
    auto* const dialog = new QFileDialog;
    applicationDialog_ = dialog;
    const auto folders = QStandardPaths::standardLocations(QStandardPaths::ApplicationsLocation);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::ExistingFile);
    dialog->setNameFilter(QStringLiteral("*.desktop"));
    if (!folders.isEmpty())
        dialog->setDirectory(folders.back());  // The user's own are first, those of the system last.
    QObject::connect(
        dialog, &QDialog::finished, dialog, [dialog, folders, done = std::move(done)](int result) {
            const auto files = dialog->selectedFiles();
            const bool isChosen = result == QDialog::Accepted && !files.isEmpty();
            done(isChosen ? desktopID(files.front(), folders) : std::nullopt);
        });
    dialog->open();
}

void QtDialogs::showAlert(const Alert& alert, std::function<void(std::size_t)> answered)
{
    if (alert_)
        alert_->reject();
    auto* const box = new QMessageBox;
    alert_ = box;
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setWindowFlag(Qt::WindowStaysOnTopHint);
    box->setWindowTitle(QStringLiteral("Fadeloom"));
    box->setTextFormat(Qt::PlainText);  // It may contain text from a server.
    box->setText(QString::fromStdString(alert.title));
    box->setInformativeText(QString::fromStdString(alert.text).toHtmlEscaped());
    // In the order given: the message box sorts its buttons as usual on the desktop.
    QList<QAbstractButton*> buttons;
    for (const auto& text : alert.buttons)
        buttons += box->addButton(QString::fromStdString(text),
            buttons.isEmpty() ? QMessageBox::AcceptRole : QMessageBox::RejectRole);
    if (buttons.isEmpty())
        buttons += box->addButton(QMessageBox::Ok);
    box->setDefaultButton(qobject_cast<QPushButton*>(buttons.front()));
    box->setEscapeButton(buttons.back());
    QObject::connect(box, &QDialog::finished, box, [box, buttons, answered = std::move(answered)] {
        const auto clicked = buttons.indexOf(box->clickedButton());
        answered(static_cast<std::size_t>(clicked < 0 ? buttons.size() - 1 : clicked));
    });
    box->setModal(false);
    box->show();
    box->raise();
    box->activateWindow();
}

}  // namespace fadeloom
