// SPDX-License-Identifier: MIT
#include "control/TapValues.h"

#include "control/AppSettings.h"
#include "engine/EqualizerHeadroom.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <future>
#include <mutex>
#include <thread>

namespace fadeloom {
namespace {

constexpr std::array<float, 10> raisedBass = {6, 6, 4, 0, 0, 0, 0, 0, 0, 0};

AppAudioSettings withVolume(float volume)
{
    AppAudioSettings app;
    app.volume = volume;
    return app;
}

float decibels(float factor)
{
    return 20 * std::log10(factor);
}

TEST(TapValues, ofTheDefaultsChangeNothing)
{
    EXPECT_EQ(tapValues({}, {}, false), TapParameters::Values{});
}

TEST(TapValues, applyTheLimitToAnyStoredVolume)
{
    SettingsData settings;
    settings.volumeLimit = 1.25F;

    EXPECT_EQ(tapValues(settings, withVolume(1.5F), false).volume, 1.25F);
    EXPECT_EQ(tapValues(settings, withVolume(0.5F), false).volume, 0.5F);
}

TEST(TapValues, muteAnAppThatIsMutedOrHasLostItsOutput)
{
    AppAudioSettings muted;
    muted.muted = true;

    EXPECT_TRUE(tapValues({}, muted, false).muted);
    EXPECT_TRUE(tapValues({}, {}, true).muted);
    EXPECT_FALSE(tapValues({}, {}, false).muted);
}

TEST(TapValues, subtractTheHeadroomFromThePreamp)
{
    SettingsData settings;
    AppAudioSettings app;
    app.eqGains = raisedBass;
    app.eqPreamp = -2;

    settings.eqAutoHeadroom = false;
    EXPECT_NEAR(decibels(tapValues(settings, app, false).preamp), -2, 1e-4);

    settings.eqAutoHeadroom = true;
    EXPECT_NEAR(
        decibels(tapValues(settings, app, false).preamp), -2 - eqLoudnessGainDB(raisedBass, 48000), 1e-4);
}

TEST(TapValues, areStoredWithoutTouchingTheEqualizersVersion)
{
    TapParameters block;
    block.setEQ({});

    store({.volume = 0.5F, .muted = true, .duck = 0.2F, .eqEnabled = true, .preamp = 2}, block);

    EXPECT_EQ(block.values,
        (TapParameters::Values{
            .volume = 0.5F, .muted = true, .duck = 0.2F, .eqEnabled = true, .preamp = 2, .eqVersion = 1}));
    EXPECT_TRUE(block.lock.try_lock());
}

TEST(TapValues, areNotStoredWhileAnotherThreadReadsThem)
{
    TapParameters block;
    std::promise<void> isReading;
    TapParameters::Values seen;
    std::thread reader([&] {
        const std::scoped_lock guard(block.lock);
        isReading.set_value();
        std::this_thread::sleep_for(std::chrono::milliseconds(30));
        seen = block.values;
    });

    isReading.get_future().wait();
    store({.volume = 0.5F}, block);
    reader.join();

    EXPECT_EQ(seen, TapParameters::Values{});
    EXPECT_EQ(block.values.volume, 0.5F);
}

TEST(AppSettings, areTheDefaultsWithoutAnEntry)
{
    EXPECT_EQ(appSettings({}, "com.example.player"), AppAudioSettings{});
}

TEST(AppSettings, areKeptOnlyWhileTheyDifferFromTheDefaults)
{
    SettingsData settings;

    storeAppSettings(settings, "com.example.player", withVolume(0.5F));
    EXPECT_EQ(appSettings(settings, "com.example.player").volume, 0.5F);

    storeAppSettings(settings, "com.example.player", {});
    EXPECT_TRUE(settings.apps.empty());
}

}  // namespace
}  // namespace fadeloom
