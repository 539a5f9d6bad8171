// SPDX-License-Identifier: MIT
#include "ui/StatusLine.h"

#include "ui/MessageText.h"

#include <QCoreApplication>

namespace fadeloom {
namespace {

QString words(const char* text)
{
    return QCoreApplication::translate("StatusLine", text);
}

}  // namespace

StatusLine statusLine(const ControllerState& state, const AppEntry& app)
{
    using Kind = StatusLine::Kind;
    if (const auto error = state.tapErrors->find(app.bundleID); error != state.tapErrors->end())
        return {.kind = Kind::failed,
            .text = words(QT_TRANSLATE_NOOP("StatusLine", "Can’t control audio")),
            .help = messageText(error->second)};
    if (app.outOfReach)
        return {.kind = Kind::outOfReach,
            .text = words(QT_TRANSLATE_NOOP("StatusLine", "Can’t control audio")),
            .help = *app.outOfReach == OutOfReach::fixed
                ? words(QT_TRANSLATE_NOOP("StatusLine", "This app ties its sound to its output device."))
                : words(QT_TRANSLATE_NOOP("StatusLine", "Another program keeps moving this app’s sound."))};
    if (state.missingOutput->contains(app.bundleID))
        return {.kind = Kind::disconnected,
            .text = words(QT_TRANSLATE_NOOP("StatusLine", "Output disconnected, muted")),
            .help = words(
                QT_TRANSLATE_NOOP("StatusLine", "Choose another output below, or reconnect the device.")),
            .symbol = QStringLiteral("speaker.slash")};
    if (state.recordings->contains(app.bundleID))
        return {.kind = Kind::recording,
            .text = words(QT_TRANSLATE_NOOP("StatusLine", "Recording")),
            .symbol = QStringLiteral("record.circle.fill")};
    if (*state.callApp == app.bundleID)
        return {.kind = Kind::onCall, .text = words(QT_TRANSLATE_NOOP("StatusLine", "On a call"))};
    if (*state.callApp && !isCallApp(state.settings->focus, app.callIDs))
        return {.kind = Kind::lowered, .text = words(QT_TRANSLATE_NOOP("StatusLine", "Lowered for call"))};
    if (app.isPlaying)
        return {.kind = Kind::playing, .text = words(QT_TRANSLATE_NOOP("StatusLine", "Playing"))};
    return {.kind = Kind::idle, .text = words(QT_TRANSLATE_NOOP("StatusLine", "Idle"))};
}

}  // namespace fadeloom
