// SPDX-License-Identifier: MIT
#include "shell/AppLanguage.h"

#include "platform/UserDefaults.h"
#include "platform/Workspace.h"

#include <algorithm>
#include <utility>

namespace fadeloom::AppLanguage {

namespace {

const std::string key = "AppleLanguages";
const std::string system = "system";

}  // namespace

std::string current(const UserDefaults& defaults)
{
    const auto stored = defaults.stringList(key);
    const bool isChoice = stored && !stored->empty()
        && std::ranges::find(choices, stored->front(), &Choice::code) != choices.end();
    return isChoice ? stored->front() : system;
}

void set(UserDefaults& defaults, const std::string& code)
{
    if (code == system)
        defaults.remove(key);
    else
        defaults.setStringList(key, {code});
}

std::vector<std::string> preferred(const UserDefaults& defaults)
{
    auto stored = defaults.stringList(key).value_or(std::vector<std::string>{});
    if (!stored.empty() && stored.front() == system)
        stored.clear();
    return stored;
}

void relaunch(Workspace& workspace, std::function<void()> terminate)
{
    workspace.openNewInstance(std::move(terminate));
}

}  // namespace fadeloom::AppLanguage
