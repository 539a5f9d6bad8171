// SPDX-License-Identifier: MIT
#include "platform/qt/QtUserDefaults.h"

#include <QFile>
#include <QSettings>
#include <QStringList>

namespace fadeloom {

namespace {

QString fileName(const std::filesystem::path& file)
{
    return QFile::decodeName(file.c_str());
}

/// An existing file that cannot be read must not be overwritten.
bool mayWrite(const QSettings& settings)
{
    return settings.status() != QSettings::AccessError;
}

/// Damaged contents must not be merged with new values.
void forgetDamage(QSettings& settings)
{
    if (settings.status() == QSettings::FormatError)
        settings.clear();
}

}  // namespace

std::optional<std::vector<std::string>> QtUserDefaults::stringList(const std::string& key) const
{
    const QSettings settings(fileName(file_), QSettings::IniFormat);
    const auto name = QString::fromStdString(key);
    if (settings.status() != QSettings::NoError || !settings.contains(name))
        return std::nullopt;
    const auto value = settings.value(name);
    // An empty list would be written as no value.
    const bool isList =
        !value.isValid() || value.typeId() == QMetaType::QString || value.typeId() == QMetaType::QStringList;
    if (!isList)
        return std::nullopt;
    std::vector<std::string> texts;
    for (const auto& text : value.toStringList())
        texts.push_back(text.toStdString());
    return texts;
}

void QtUserDefaults::setStringList(const std::string& key, const std::vector<std::string>& values)
{
    QStringList texts;
    for (const auto& value : values)
        texts += QString::fromStdString(value);
    QSettings settings(fileName(file_), QSettings::IniFormat);
    if (!mayWrite(settings))
        return;
    forgetDamage(settings);
    settings.setValue(QString::fromStdString(key), texts);
}

void QtUserDefaults::remove(const std::string& key)
{
    QSettings settings(fileName(file_), QSettings::IniFormat);
    if (!mayWrite(settings))
        return;
    forgetDamage(settings);
    settings.remove(QString::fromStdString(key));
}

}  // namespace fadeloom
