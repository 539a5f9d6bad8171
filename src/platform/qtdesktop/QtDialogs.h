// SPDX-License-Identifier: MIT
// The desktop's own dialogs.
#pragma once

#include "platform/Dialogs.h"

#include <QPointer>

class QFileDialog;
class QMessageBox;

namespace fadeloom {

/// None of them blocks: the program goes on while one is open. Needs a QApplication. Thread: main.
class QtDialogs final : public Dialogs {
public:
    QtDialogs() = default;
    QtDialogs(const QtDialogs&) = delete;
    QtDialogs& operator=(const QtDialogs&) = delete;
    ~QtDialogs() override;

    // A second question takes the place of the first one of its kind, which is answered as if it were closed. One that is
    // still open at the end of this object is never answered.

    void chooseFolder(
        const std::filesystem::path& start, const std::string& prompt, FolderChosen done) override;
    /// Asks for a desktop entry; the bundle identifier is its desktop id.
    void chooseApplication(ApplicationChosen done) override;
    void showAlert(const Alert& alert, std::function<void(std::size_t button)> answered) override;

private:
    QPointer<QFileDialog> folderDialog_;
    QPointer<QFileDialog> applicationDialog_;
    QPointer<QMessageBox> alert_;
};

}  // namespace fadeloom
