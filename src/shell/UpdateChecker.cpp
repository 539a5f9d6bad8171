// SPDX-License-Identifier: MIT
#include "shell/UpdateChecker.h"

#include "platform/Application.h"
#include "platform/Dialogs.h"
#include "platform/HttpClient.h"
#include "platform/MainLoop.h"
#include "platform/Workspace.h"
#include "shell/WebAddress.h"

#include <charconv>
#include <string_view>
#include <utility>

namespace fadeloom {

namespace {

constexpr int statusOK = 200;

std::int64_t buildNumber(std::string_view text)
{
    if (text.starts_with('+') && !text.starts_with("+-"))
        text.remove_prefix(1);
    std::int64_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc{} && end == text.data() + text.size() ? number : 0;
}

}  // namespace

UpdateChecker::UpdateChecker(Product product, Parts parts)
    : product_(std::move(product))
    , localBuild_(buildNumber(product_.build))
    , parts_(std::move(parts))
{
}

std::string UpdateChecker::versionURL() const
{
    return pageURL(product_.endpoint, "/version.json");
}

std::string UpdateChecker::downloadURL() const
{
    return pageURL(product_.endpoint, "/download.php");
}

void UpdateChecker::start()
{
    const auto checkSilently = [this] { check([](bool) { }); };
    checkSilently();
    timer_ = parts_.mainLoop.every(checkInterval, checkSilently);
}

void UpdateChecker::check(std::function<void(bool)> done)
{
    const auto answered = [this, done = std::move(done)](const std::optional<HttpResponse>& response) {
        const bool isOK = response && response->status == statusOK;
        const auto remote = isOK ? decodeRemoteVersion(response->body) : std::nullopt;
        if (remote)
            take(*remote);
        done(remote.has_value());
    };
    parts_.http.get({.url = versionURL(), .userAgent = "Fadeloom/" + std::to_string(localBuild_)},
        life_.whileAlive(answered));
}

// Only build numbers are compared; version names carry no order.
void UpdateChecker::take(const RemoteVersion& remote)
{
    const bool isNewer = remote.build > localBuild_;
    available_.assignIfDifferent(isNewer ? std::optional(remote) : std::nullopt);
}

void UpdateChecker::checkInteractively()
{
    check([this](bool isReachable) { reportOutcome(isReachable); });
}

void UpdateChecker::reportOutcome(bool isReachable)
{
    parts_.application.activate();
    if (const auto& remote = *available_) {
        const auto answered = [this](std::size_t button) {
            if (button == 0)
                openDownloadPage();
        };
        return parts_.dialogs.showAlert(updateAlert(*remote), life_.whileAlive(answered));
    }
    const auto& translate = parts_.translate;
    const Alert alert = isReachable
        ? Alert{.title = translate("UpdateChecker", "Fadeloom is up to date"),
              .text = translate("UpdateChecker", "You have the latest version.")}
        : Alert{.title = translate("UpdateChecker", "Could not check for updates"),
              .text = translate("UpdateChecker", "Check your internet connection and try again.")};
    parts_.dialogs.showAlert(alert, [](std::size_t) { });
}

Alert UpdateChecker::updateAlert(const RemoteVersion& remote) const
{
    const auto& translate = parts_.translate;
    return {
        .title = withValue(translate("UpdateChecker", "Fadeloom %1 is available"), remote.version),
        .text = withValue(
            translate("PlatformTexts",
                "You have version %1. Download the new version and replace Fadeloom in Applications."),
            product_.version),
        .buttons = {translate("UpdateChecker", "Download"), translate("UpdateChecker", "Later")},
    };
}

void UpdateChecker::openDownloadPage()
{
    parts_.workspace.open(downloadURL());
}

}  // namespace fadeloom
