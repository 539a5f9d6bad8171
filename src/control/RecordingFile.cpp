// SPDX-License-Identifier: MIT
#include "control/RecordingFile.h"

#include "platform/StandardFolders.h"

#include <algorithm>
#include <iomanip>
#include <locale>
#include <sstream>

namespace fadeloom {
namespace {

std::string dateText(LocalTime moment)
{
    using namespace std::chrono;
    const auto day = floor<days>(moment);
    const year_month_day date(day);
    const hh_mm_ss time(moment - day);
    std::ostringstream text;
    text.imbue(std::locale::classic());
    const auto padded = [&](auto number, int width) -> std::ostream& {
        return text << std::setfill('0') << std::setw(width) << number;
    };
    padded(static_cast<int>(date.year()), 4) << '-';
    padded(static_cast<unsigned>(date.month()), 2) << '-';
    padded(static_cast<unsigned>(date.day()), 2) << ' ';
    padded(time.hours().count(), 2) << '.';
    padded(time.minutes().count(), 2) << '.';
    padded(time.seconds().count(), 2);
    return text.str();
}

}  // namespace

std::filesystem::path recordingsFolder(const SettingsData& settings, const StandardFolders& folders)
{
    if (settings.recordingsFolder)
        return *settings.recordingsFolder;
    return folders.music() / "Fadeloom Recordings";
}

std::string recordingFileName(std::string_view appName, LocalTime startedAt, int count)
{
    std::string name(appName);
    std::ranges::replace(name, '/', '-');
    std::ranges::replace(name, ':', '-');
    const auto suffix = count > 1 ? " " + std::to_string(count) : "";
    return name + " " + dateText(startedAt) + suffix + ".wav";
}

}  // namespace fadeloom
