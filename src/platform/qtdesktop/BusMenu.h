// SPDX-License-Identifier: MIT
// The status icon's menu, exported on D-Bus for the desktop's bar to display.
#pragma once

#include "platform/StatusItem.h"
#include "platform/qtdesktop/BusMenuTypes.h"

#include <QHash>
#include <QObject>
#include <QStringList>

#include <functional>

namespace fadeloom {

/// Implements com.canonical.dbusmenu. The entries are built whenever a bar is about to show them. An entry keeps its id
/// for the lifetime of this object: a click in a menu that a bar has cached activates the entry that was displayed.
/// Thread: main.
class BusMenu final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.canonical.dbusmenu")
    Q_PROPERTY(uint Version READ version)
    Q_PROPERTY(QString TextDirection READ textDirection)
    Q_PROPERTY(QString Status READ status)
    Q_PROPERTY(QStringList IconThemePath READ iconThemePath)

public:
    BusMenu();

    /// Sets the factory of the entries, and a callback for when they are about to be shown.
    void setBuilder(std::function<StatusMenu()> build);
    void whenOpens(std::function<void()> opens) { opens_ = std::move(opens); }

    [[nodiscard]] uint version() const { return 3; }
    [[nodiscard]] QString textDirection() const;
    [[nodiscard]] QString status() const { return QStringLiteral("normal"); }
    [[nodiscard]] QStringList iconThemePath() const { return {}; }

public Q_SLOTS:
    uint GetLayout(int parentId, int recursionDepth, const QStringList& propertyNames,
        // NOLINTNEXTLINE(google-runtime-references): the second result of a D-Bus method.
        fadeloom::BusMenuLayout& layout);
    QList<fadeloom::BusMenuProperties> GetGroupProperties(
        const QList<int>& ids, const QStringList& propertyNames);
    QDBusVariant GetProperty(int id, const QString& name);
    void Event(int id, const QString& event, const QDBusVariant& data, uint time);
    QList<int> EventGroup(const QList<fadeloom::BusMenuEvent>& events);
    bool AboutToShow(int id);
    QList<int> AboutToShowGroup(const QList<int>& ids, QList<int>& idErrors);  // NOLINT: as above.

Q_SIGNALS:
    void LayoutUpdated(uint revision, int parent);

private:
    struct Entry {
        int id = 0;
        QVariantMap properties;
        std::function<void()> action;

        bool operator==(const Entry& other) const { return id == other.id && properties == other.properties; }
    };

    bool rebuild();
    [[nodiscard]] int idOf(const StatusMenuEntry& entry, int position);
    [[nodiscard]] const Entry* find(int id) const;
    [[nodiscard]] QVariantMap propertiesOf(int id, const QStringList& names) const;

    std::function<StatusMenu()> build_ = [] { return StatusMenu{}; };
    std::function<void()> opens_ = [] { };
    QList<Entry> entries_;
    QHash<QString, int> ids_;  // By title.
    uint revision_ = 0;
};

}  // namespace fadeloom
