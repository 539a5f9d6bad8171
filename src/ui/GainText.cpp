// SPDX-License-Identifier: MIT
#include "ui/GainText.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <cmath>

namespace fadeloom {
namespace {

constexpr std::array<const char*, eqBandCount> labels = {
    "32", "64", "125", "250", "500", "1k", "2k", "4k", "8k", "16k"};

}  // namespace

float wholeGain(double value)
{
    // Adding zero turns a rounded −0 into 0, the value of a flat band.
    const double whole = std::round(value) + 0.0;
    return std::clamp(static_cast<float>(whole), -eqMaximumGainDB, eqMaximumGainDB);
}

QString decibelText(double gain)
{
    if (gain == 0)
        return QStringLiteral("0 dB");
    return QString::asprintf("%+.0f dB", gain);
}

QString spokenDecibels(double gain)
{
    const auto whole = static_cast<int>(std::lround(gain));
    return QCoreApplication::translate("GainText", "%n decibels", nullptr, whole);
}

QString bandLabel(int band)
{
    return QString::fromLatin1(labels.at(static_cast<std::size_t>(band)));
}

QString bandHelp(int band, double gain)
{
    return bandLabel(band) + QStringLiteral(" Hz: ") + decibelText(gain);
}

QString spokenBand(int band)
{
    return QCoreApplication::translate("GainText", "%1 hertz").arg(bandLabel(band));
}

}  // namespace fadeloom
