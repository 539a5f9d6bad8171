// SPDX-License-Identifier: MIT
// Dialogs that wait for a simulated user.
#pragma once

#include "platform/Dialogs.h"

#include <utility>
#include <vector>

namespace fadeloom {

class SimulatedDialogs final : public Dialogs {
public:
    /// An open dialog.
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
    void chooseApplication(ApplicationChosen done) override
    {
        applicationQuestions_.push_back(std::move(done));
    }
    void showAlert(const Alert& alert, std::function<void(std::size_t)> answered) override
    {
        alerts_.push_back(alert);
        openAlerts_.push_back(std::move(answered));
    }

    [[nodiscard]] const std::vector<FolderQuestion>& questions() const { return questions_; }
    /// Answers all open folder prompts; nullopt cancels them.
    void answer(const std::optional<std::filesystem::path>& folder)
    {
        for (const auto& question : std::exchange(questions_, {}))
            question.done(folder);
    }

    [[nodiscard]] std::size_t applicationQuestions() const { return applicationQuestions_.size(); }
    /// The same for application prompts.
    void answerApplication(const std::optional<std::string>& bundleID)
    {
        for (const auto& done : std::exchange(applicationQuestions_, {}))
            done(bundleID);
    }

    /// All messages shown, in order, and the number still open.
    [[nodiscard]] const std::vector<Alert>& alerts() const { return alerts_; }
    [[nodiscard]] std::size_t openAlerts() const { return openAlerts_.size(); }
    /// Answers all open messages with the button at this index.
    void answerAlert(std::size_t button)
    {
        for (const auto& answered : std::exchange(openAlerts_, {}))
            answered(button);
    }

private:
    std::vector<FolderQuestion> questions_;
    std::vector<ApplicationChosen> applicationQuestions_;
    std::vector<Alert> alerts_;
    std::vector<std::function<void(std::size_t)>> openAlerts_;
};

}  // namespace fadeloom
