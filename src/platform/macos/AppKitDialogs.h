// SPDX-License-Identifier: MIT
// Open panels and alerts.
#pragma once

#include "platform/Dialogs.h"

namespace fadeloom {

/// Alerts block until they are answered; the panels return immediately.
class AppKitDialogs final : public Dialogs {
public:
    void chooseFolder(
        const std::filesystem::path& start, const std::string& prompt, FolderChosen done) override;
    void chooseApplication(ApplicationChosen done) override;
    void showAlert(const Alert& alert, std::function<void(std::size_t button)> answered) override;
};

}  // namespace fadeloom
