// SPDX-License-Identifier: MIT
#include "platform/linux/SystemClock.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <ctime>
#include <optional>
#include <string>
#include <thread>

namespace fadeloom {
namespace {

using namespace std::chrono_literals;
using std::chrono::local_days;
using std::chrono::sys_days;

/// While an instance exists, the process is in this time zone.
class Zone {
public:
    explicit Zone(const char* name)
    {
        if (const char* const old = std::getenv("TZ"))
            old_ = old;
        setenv("TZ", name, 1);
    }
    Zone(const Zone&) = delete;
    Zone& operator=(const Zone&) = delete;
    ~Zone()
    {
        if (old_)
            setenv("TZ", old_->c_str(), 1);
        else
            unsetenv("TZ");
        tzset();
    }

private:
    std::optional<std::string> old_;
};

const SystemClock systemClock;

TEST(SystemClock, nowIsTheSystemsTime)
{
    const auto before = std::chrono::system_clock::now();
    const auto now = systemClock.now();

    EXPECT_GE(now, before);
    EXPECT_LE(now, std::chrono::system_clock::now());
}

TEST(SystemClock, aZoneHasSummerAndWinter)
{
    const Zone zone{"Europe/Warsaw"};

    EXPECT_EQ(systemClock.localTime(sys_days{2025y / 1 / 15} + 12h), local_days{2025y / 1 / 15} + 13h);
    EXPECT_EQ(
        systemClock.localTime(sys_days{2025y / 7 / 15} + 22h + 30min), local_days{2025y / 7 / 16} + 30min);
}

TEST(SystemClock, anHourIsSkippedInSpringAndRepeatedInAutumn)
{
    const Zone zone{"Europe/Warsaw"};

    EXPECT_EQ(systemClock.localTime(sys_days{2025y / 3 / 30} + 59min + 59s),
        local_days{2025y / 3 / 30} + 1h + 59min + 59s);
    EXPECT_EQ(systemClock.localTime(sys_days{2025y / 3 / 30} + 1h), local_days{2025y / 3 / 30} + 3h);
    EXPECT_EQ(
        systemClock.localTime(sys_days{2025y / 10 / 26} + 30min), local_days{2025y / 10 / 26} + 2h + 30min);
    EXPECT_EQ(systemClock.localTime(sys_days{2025y / 10 / 26} + 1h + 30min),
        local_days{2025y / 10 / 26} + 2h + 30min);
}

TEST(SystemClock, zonesNeedNotBeWholeHours)
{
    const auto moment = sys_days{2025y / 6 / 1} + 20h;

    const auto timeIn = [&](const char* name) {
        const Zone zone{name};
        return systemClock.localTime(moment);
    };

    EXPECT_EQ(timeIn("Asia/Kolkata"), local_days{2025y / 6 / 2} + 1h + 30min);
    EXPECT_EQ(timeIn("Asia/Kathmandu"), local_days{2025y / 6 / 2} + 1h + 45min);
    EXPECT_EQ(timeIn("America/St_Johns"), local_days{2025y / 6 / 1} + 17h + 30min);
    EXPECT_EQ(timeIn("UTC"), local_days{2025y / 6 / 1} + 20h);
}

TEST(SystemClock, aChangedZoneCountsAtOnceOnEveryThread)
{
    const auto moment = sys_days{2025y / 6 / 1};
    const Zone zone{"UTC"};
    EXPECT_EQ(systemClock.localTime(moment), local_days{2025y / 6 / 1});

    const Zone moved{"Asia/Tokyo"};

    EXPECT_EQ(systemClock.localTime(moment), local_days{2025y / 6 / 1} + 9h);
    std::thread{[&] { EXPECT_EQ(systemClock.localTime(moment), local_days{2025y / 6 / 1} + 9h); }}.join();
}

TEST(SystemClock, partsOfASecondAreRoundedDownAlsoBefore1970)
{
    const Zone zone{"America/St_Johns"};  // UTC−3:30, and in 1930 some seconds more.

    EXPECT_EQ(
        systemClock.localTime(sys_days{2025y / 1 / 1} + 999ms), local_days{2024y / 12 / 31} + 20h + 30min);
    EXPECT_EQ(systemClock.localTime(sys_days{1970y / 1 / 1} - 1ms),
        local_days{1969y / 12 / 31} + 20h + 29min + 59s);
    EXPECT_EQ(
        systemClock.localTime(sys_days{1930y / 1 / 1} + 1ms), local_days{1929y / 12 / 31} + 20h + 29min + 8s);
}

TEST(SystemClock, isThreadSafe)
{
    const Zone zone{"Europe/Warsaw"};
    std::array<int, 4> wrong{};
    {
        std::vector<std::jthread> threads;
        for (int& count : wrong)
            threads.emplace_back([&count] {
                for (int day = 0; day < 5000; ++day) {
                    const auto moment = sys_days{2025y / 7 / 1} + 1s * day;
                    count +=
                        systemClock.localTime(moment) == local_days{2025y / 7 / 1} + 2h + 1s * day ? 0 : 1;
                }
            });
    }

    EXPECT_EQ(wrong, (std::array<int, 4>{}));
}

}  // namespace
}  // namespace fadeloom
