// SPDX-License-Identifier: MIT
// Dialogs that wait for a simulated user.
#pragma once

#include "platform/Dialogs.h"

#include <utility>
#include <vector>

namespace fadeloom {

class SimulatedDialogs final : public Dialogs {
public:
    /// A dialog that is open.
    struct FolderQuestion {
        std::filesystem::path start;
        std::string prompt;
        FolderChosen done;
    };

    void chooseFolder(
        const std::filesystem::path& start, const std::string& prompt, FolderChosen done) override
    {
        questions_.push_back({start, prompt, std::move(done)});
    }

    [[nodiscard]] const std::vector<FolderQuestion>& questions() const { return questions_; }
    /// The user answers every open dialog; with nothing, cancels it.
    void answer(const std::optional<std::filesystem::path>& folder)
    {
        for (const auto& question : std::exchange(questions_, {}))
            question.done(folder);
    }

private:
    std::vector<FolderQuestion> questions_;
};

}  // namespace fadeloom
