// SPDX-License-Identifier: MIT
// The desktop's own dialogs.
#pragma once

#include "platform/Dialogs.h"

#include <QPointer>

class QFileDialog;

namespace fadeloom {

/// None of them blocks: the program goes on while one is open. Needs a QApplication. Thread: main.
class QtDialogs final : public Dialogs {
public:
    QtDialogs() = default;
    QtDialogs(const QtDialogs&) = delete;
    QtDialogs& operator=(const QtDialogs&) = delete;
    ~QtDialogs() override;

    /// A second question takes the place of the first, which is answered with nothing.
    void chooseFolder(
        const std::filesystem::path& start, const std::string& prompt, FolderChosen done) override;

private:
    QPointer<QFileDialog> folderDialog_;
};

}  // namespace fadeloom
