// SPDX-License-Identifier: MIT
#include "platform/macos/AppKitWorkspace.h"

#include "platform/macos/AppIconFiles.h"
#include "platform/macos/NSText.h"
#include "platform/macos/OneInstance.h"

#import <AppKit/AppKit.h>
#include <unistd.h>

#include <bit>
#include <utility>

namespace fadeloom {
namespace {

ActivationPolicy policyOf(NSRunningApplication* application)
{
    switch (application.activationPolicy) {
    case NSApplicationActivationPolicyRegular:
        return ActivationPolicy::regular;
    case NSApplicationActivationPolicyAccessory:
        return ActivationPolicy::accessory;
    case NSApplicationActivationPolicyProhibited:
        return ActivationPolicy::prohibited;
    }
    return ActivationPolicy::prohibited;
}

/// The time of its launch; 0 if the system does not report it.
std::uint64_t launchMarkOf(NSRunningApplication* application)
{
    NSDate* launched = application.launchDate;
    return launched == nil ? 0 : std::bit_cast<std::uint64_t>(launched.timeIntervalSinceReferenceDate);
}

RunningApplication describe(NSRunningApplication* application)
{
    return {
        .pid = application.processIdentifier,
        .bundleID = textOf(application.bundleIdentifier),
        .bundleLocation = pathOf(application.bundleURL),
        .activationPolicy = policyOf(application),
        .localizedName = textOf(application.localizedName),
        .icon = std::nullopt,  // Rendered only for those that are shown.
        .launchMark = launchMarkOf(application),
    };
}

}  // namespace

AppKitWorkspace::AppKitWorkspace(std::filesystem::path iconFolder)
    : icons_(std::make_unique<AppIconFiles>(std::move(iconFolder)))
{
}

AppKitWorkspace::~AppKitWorkspace() = default;

ProcessID AppKitWorkspace::ownPid() const
{
    return ::getpid();
}

std::string AppKitWorkspace::ownBundleID() const
{
    @autoreleasepool {
        return textOf(NSBundle.mainBundle.bundleIdentifier).value_or("com.fadeloom.app");
    }
}

std::vector<RunningApplication> AppKitWorkspace::runningApplications() const
{
    @autoreleasepool {
        std::vector<RunningApplication> running;
        for (NSRunningApplication* each in NSWorkspace.sharedWorkspace.runningApplications)
            running.push_back(describe(each));
        return running;
    }
}

std::optional<RunningApplication> AppKitWorkspace::runningApplication(ProcessID pid) const
{
    @autoreleasepool {
        NSRunningApplication* found = [NSRunningApplication runningApplicationWithProcessIdentifier:pid];
        return found == nil ? std::nullopt : std::optional(describe(found));
    }
}

void AppKitWorkspace::findIcon(
    const RunningApplication& application, std::function<void(const AppIcon&)> found)
{
    @autoreleasepool {
        if (NSRunningApplication* running =
                [NSRunningApplication runningApplicationWithProcessIdentifier:application.pid])
            icons_->find(running, std::move(found));
    }
}

bool AppKitWorkspace::isTerminated(const RunningApplication& application) const
{
    @autoreleasepool {
        NSRunningApplication* found =
            [NSRunningApplication runningApplicationWithProcessIdentifier:application.pid];
        return found == nil || found.terminated || launchMarkOf(found) != application.launchMark;
    }
}

std::optional<ProcessID> AppKitWorkspace::responsiblePid(ProcessID pid) const
{
    return responsibleProcess_.of(pid);
}

bool AppKitWorkspace::isApplicationBundle(const std::filesystem::path& location) const
{
    return location.extension() == ".app";
}

void AppKitWorkspace::reveal(const std::filesystem::path& file)
{
    @autoreleasepool {
        [NSWorkspace.sharedWorkspace activateFileViewerSelectingURLs:@[ nsURL(file) ]];
    }
}

void AppKitWorkspace::open(const std::string& url)
{
    @autoreleasepool {
        if (NSURL* location = [NSURL URLWithString:nsText(url)])
            [NSWorkspace.sharedWorkspace openURL:location];
    }
}

std::optional<std::string> AppKitWorkspace::installedName(const std::string& bundleID) const
{
    @autoreleasepool {
        NSURL* location =
            [NSWorkspace.sharedWorkspace URLForApplicationWithBundleIdentifier:nsText(bundleID)];
        if (location == nil)
            return std::nullopt;
        NSString* name = [NSFileManager.defaultManager displayNameAtPath:nsText(*pathOf(location))];
        return textOf([name stringByReplacingOccurrencesOfString:@".app" withString:@""]);
    }
}

void AppKitWorkspace::openNewInstance(std::function<void()> reported)
{
    @autoreleasepool {
        NSWorkspaceOpenConfiguration* configuration = [NSWorkspaceOpenConfiguration configuration];
        configuration.createsNewApplicationInstance = YES;
        configuration.environment = @{nsText(OneInstance::successorVariable) : @"1"};
        // The reply arrives on an arbitrary thread.
        [NSWorkspace.sharedWorkspace openApplicationAtURL:NSBundle.mainBundle.bundleURL
                                            configuration:configuration
                                        completionHandler:^(NSRunningApplication*, NSError*) {
                                            dispatch_async(dispatch_get_main_queue(), ^{ reported(); });
                                        }];
    }
}

}  // namespace fadeloom
