// SPDX-License-Identifier: MIT
#include "ui/MessageText.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QStringList>

namespace fadeloom {
namespace {

constexpr const char* sentences[] = {
    QT_TRANSLATE_NOOP("MessageText", "“%1” is a built-in preset name. Choose another name."),
    QT_TRANSLATE_NOOP("MessageText", "Start playback in this app first, then press record."),
    QT_TRANSLATE_NOOP("MessageText", "Could not start recording: %1"),
    QT_TRANSLATE_NOOP("MessageText", "Could not save settings: %1"),
    QT_TRANSLATE_NOOP("MessageText", "Settings could not be read, and changes will not be saved: %1"),
    QT_TRANSLATE_NOOP("MessageText", "Launch at login: %1"),
    QT_TRANSLATE_NOOP("MessageText", "Recording of %1 stopped: the file could not be written (%2)."),
};

QRegularExpression patternOf(const QString& sentence)
{
    auto pattern = QRegularExpression::escape(sentence);
    for (const auto* const place : {"\\%1", "\\%2"})
        pattern.replace(QLatin1String(place), QLatin1String("(.*)"));
    return QRegularExpression(
        QRegularExpression::anchoredPattern(pattern), QRegularExpression::DotMatchesEverythingOption);
}

}  // namespace

QString messageText(const std::string& message)
{
    const auto text = QString::fromStdString(message);
    for (const auto* const sentence : sentences) {
        const auto match = patternOf(QString::fromUtf8(sentence)).match(text);
        if (!match.hasMatch())
            continue;
        const auto translated = QCoreApplication::translate("MessageText", sentence);
        switch (match.lastCapturedIndex()) {
        case 1:
            return translated.arg(match.captured(1));
        case 2:
            return translated.arg(match.captured(1), match.captured(2));
        default:
            return translated;
        }
    }
    return text;
}

}  // namespace fadeloom
