// SPDX-License-Identifier: MIT
// An entry of a menu.
#pragma once

#include <QObject>
#include <QString>
#include <QVariant>

#include <vector>

namespace fadeloom {

/// A value type for views. `key` identifies the choice; only a choice or a submenu can be selected.
struct MenuEntry {
    enum class Kind { choice, heading, separator, submenu };

    Q_GADGET
    Q_PROPERTY(QString text MEMBER text)
    Q_PROPERTY(QString key MEMBER key)
    Q_PROPERTY(bool isChecked MEMBER isChecked)
    Q_PROPERTY(bool isHeading READ isHeading)
    Q_PROPERTY(bool isSeparator READ isSeparator)
    Q_PROPERTY(bool isSubmenu READ isSubmenu)

public:
    Kind kind = Kind::choice;
    QString text{};
    QString key{};
    bool isChecked = false;

    [[nodiscard]] bool isHeading() const { return kind == Kind::heading; }
    [[nodiscard]] bool isSeparator() const { return kind == Kind::separator; }
    [[nodiscard]] bool isSubmenu() const { return kind == Kind::submenu; }

    friend bool operator==(const MenuEntry&, const MenuEntry&) = default;
};

using MenuEntries = std::vector<MenuEntry>;

/// The entries as a list for QML.
[[nodiscard]] inline QVariantList variantsOf(const MenuEntries& entries)
{
    QVariantList variants;
    for (const auto& entry : entries)
        variants.append(QVariant::fromValue(entry));
    return variants;
}

}  // namespace fadeloom
