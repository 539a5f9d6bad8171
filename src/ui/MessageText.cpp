// SPDX-License-Identifier: MIT
#include "ui/MessageText.h"

#include <QCoreApplication>

namespace fadeloom {
namespace {

QString words(const char* text)
{
    return QCoreApplication::translate("MessageText", text);
}

// For extraction into the tables: these are selected by an error's contents.
[[maybe_unused]] constexpr const char* tapTexts[] = {
    QT_TRANSLATE_NOOP("MessageText", "Create process tap"),
    QT_TRANSLATE_NOOP("MessageText", "Unsupported tap format"),
    QT_TRANSLATE_NOOP("MessageText", "Create aggregate device"),
    QT_TRANSLATE_NOOP("MessageText", "Create IOProc"),
    QT_TRANSLATE_NOOP("MessageText", "Start device"),
    QT_TRANSLATE_NOOP("MessageText", "Switch off the microphone"),
    QT_TRANSLATE_NOOP("MessageText", "Create recording file"),
    QT_TRANSLATE_NOOP("MessageText", "Set recording format"),
    QT_TRANSLATE_NOOP("MessageText", "no PipeWire server is running"),
    QT_TRANSLATE_NOOP("MessageText", "the device is gone"),
    QT_TRANSLATE_NOOP("MessageText", "a process is gone"),
    QT_TRANSLATE_NOOP("MessageText", "of %1 files that may be open, too few are left"),
    QT_TRANSLATE_NOOP("MessageText", "PipeWire made no node for it"),
    QT_TRANSLATE_NOOP("MessageText", "the one of %1 would listen while apps play there"),
};

const char* pattern(FileError::Step step)
{
    using Step = FileError::Step;
    switch (step) {
    case Step::read:
        return QT_TRANSLATE_NOOP("MessageText", "Cannot read %1: %2");
    case Step::follow:
        return QT_TRANSLATE_NOOP("MessageText", "Cannot follow %1: %2");
    case Step::replace:
        return QT_TRANSLATE_NOOP("MessageText", "Cannot replace %1: %2");
    case Step::createBeside:
        return QT_TRANSLATE_NOOP("MessageText", "Cannot create a file beside %1: %2");
    case Step::write:
        return QT_TRANSLATE_NOOP("MessageText", "Cannot write %1: %2");
    case Step::createFolder:
        return QT_TRANSLATE_NOOP("MessageText", "Cannot create the folder %1: %2");
    case Step::remove:
        break;
    }
    return QT_TRANSLATE_NOOP("MessageText", "Cannot remove %1: %2");
}

struct Wording {
    QString operator()(const FileError& error) const
    {
        return words(pattern(error.step))
            .arg(QString::fromStdString(error.file.string()), QString::fromStdString(error.reason.message()));
    }
    QString operator()(const TapError& error) const
    {
        const auto step = words(error.step.words().data());
        if (error.reason.words().empty())
            return words(QT_TRANSLATE_NOOP("MessageText", "%1 failed (OSStatus %2)"))
                .arg(step, QString::number(error.status));
        auto reason = words(error.reason.words().data());
        reason.replace(QLatin1String("%1"), QString::fromStdString(error.detail));
        return words(QT_TRANSLATE_NOOP("MessageText", "%1 failed: %2")).arg(step, reason);
    }
    QString operator()(const SettingsTooLarge& error) const
    {
        return words(QT_TRANSLATE_NOOP("MessageText", "larger than %1 bytes"))
            .arg(QString::number(error.maximumBytes));
    }
    QString operator()(const ProgramUnknown&) const
    {
        return words(QT_TRANSLATE_NOOP("MessageText", "The system does not tell where this program is."));
    }
    QString operator()(const SystemMessage& error) const { return QString::fromStdString(error.text); }

    QString operator()(const BuiltInPresetName& error) const
    {
        return words(QT_TRANSLATE_NOOP("MessageText", "“%1” is a built-in preset name. Choose another name."))
            .arg(QString::fromStdString(error.name));
    }
    QString operator()(const NothingToRecord&) const
    {
        return words(
            QT_TRANSLATE_NOOP("MessageText", "Start playback in this app first, then press record."));
    }
    QString operator()(const RecordingNotStarted& error) const
    {
        return words(QT_TRANSLATE_NOOP("MessageText", "Could not start recording: %1"))
            .arg(std::visit(*this, error.reason));
    }
    QString operator()(const RecordingNotWritten& error) const
    {
        return words(
            QT_TRANSLATE_NOOP("MessageText", "Recording of %1 stopped: the file could not be written (%2)."))
            .arg(QString::fromStdString(error.appName), QString::fromStdString(error.reason));
    }
    QString operator()(const RecordingRateChanged& error) const
    {
        return words(QT_TRANSLATE_NOOP("MessageText",
                         "Recording of %1 stopped: the output device changed its sample rate."))
            .arg(QString::fromStdString(error.appName));
    }
    QString operator()(const SettingsNotSaved& error) const
    {
        return words(QT_TRANSLATE_NOOP("MessageText", "Could not save settings: %1"))
            .arg(std::visit(*this, error.reason));
    }
    QString operator()(const SettingsNotRead& error) const
    {
        return words(
            QT_TRANSLATE_NOOP("MessageText", "Settings could not be read, and changes will not be saved: %1"))
            .arg(std::visit(*this, error.reason));
    }
    QString operator()(const LoginItemRefused& error) const
    {
        return words(QT_TRANSLATE_NOOP("MessageText", "Launch at login: %1"))
            .arg(std::visit(*this, error.reason));
    }
    QString operator()(const OutputRefused& error) const
    {
        return words(QT_TRANSLATE_NOOP("MessageText", "Could not switch output to %1."))
            .arg(QString::fromStdString(error.deviceName));
    }
};

}  // namespace

QString messageText(const ControllerError& error)
{
    return std::visit(Wording{}, error);
}

QString messageText(const TapError& error)
{
    return Wording{}(error);
}

}  // namespace fadeloom
