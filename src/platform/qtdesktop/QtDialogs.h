// SPDX-License-Identifier: MIT
// The desktop's dialogs.
#pragma once

#include "platform/Dialogs.h"

#include <QPointer>

class QFileDialog;
class QMessageBox;

namespace fadeloom {

/// None of them blocks: the program continues while one is open. Needs a QApplication. Thread: main.
class QtDialogs final : public Dialogs {
public:
    QtDialogs() = default;
    QtDialogs(const QtDialogs&) = delete;
    QtDialogs& operator=(const QtDialogs&) = delete;
    ~QtDialogs() override;

    // A second question replaces the first one of its kind, which counts as closed. One that is still open when this
    // object is destroyed is never answered.

    void chooseFolder(
        const std::filesystem::path& start, const std::string& prompt, FolderChosen done) override;
    /// Prompts for a desktop entry; the bundle identifier is its desktop id.
    void chooseApplication(ApplicationChosen done) override;
    void showAlert(const Alert& alert, std::function<void(std::size_t button)> answered) override;

private:
    QPointer<QFileDialog> folderDialog_;
    QPointer<QFileDialog> applicationDialog_;
    QPointer<QMessageBox> alert_;
};

}  // namespace fadeloom
