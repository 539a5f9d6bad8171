// SPDX-License-Identifier: MIT
#include "platform/qtdesktop/QtDialogs.h"

#include <QFile>
#include <QFileDialog>

#include <utility>

namespace fadeloom {

QtDialogs::~QtDialogs()
{
    delete folderDialog_;
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

}  // namespace fadeloom
