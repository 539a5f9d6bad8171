// SPDX-License-Identifier: MIT
#include "platform/qtdesktop/BusMenu.h"

#include <QGuiApplication>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace fadeloom {
namespace {

constexpr int root = 0;

QVariantMap propertiesOfEntry(const StatusMenuEntry& entry)
{
    if (entry.isSeparator())
        return {{QStringLiteral("type"), QStringLiteral("separator")}};
    // A single underscore would mark a mnemonic.
    const auto label = QString::fromStdString(entry.title).replace(QLatin1Char('_'), QStringLiteral("__"));
    QVariantMap properties{{QStringLiteral("label"), label}};
    if (entry.isChecked) {
        properties[QStringLiteral("toggle-type")] = QStringLiteral("checkmark");
        properties[QStringLiteral("toggle-state")] = 1;
    }
    return properties;
}

QVariantMap chosen(const QVariantMap& all, const QStringList& names)
{
    if (names.isEmpty())
        return all;
    QVariantMap result;
    for (const auto& name : names) {
        if (const auto found = all.find(name); found != all.end())
            result[name] = *found;
    }
    return result;
}

}  // namespace

BusMenu::BusMenu()
{
    registerBusMenuTypes();
}

void BusMenu::setBuilder(std::function<StatusMenu()> build)
{
    build_ = std::move(build);
    if (rebuild())
        Q_EMIT LayoutUpdated(revision_, root);
}

QString BusMenu::textDirection() const
{
    return QGuiApplication::isRightToLeft() ? QStringLiteral("rtl") : QStringLiteral("ltr");
}

int BusMenu::idOf(const StatusMenuEntry& entry, int position)
{
    // Separators are identified by the entry that they follow.
    const auto name =
        entry.isSeparator() ? QStringLiteral("\n%1").arg(position) : QString::fromStdString(entry.title);
    const auto known = ids_.constFind(name);
    return known != ids_.cend() ? *known : *ids_.insert(name, static_cast<int>(ids_.size()) + 1);
}

bool BusMenu::rebuild()
{
    QList<Entry> entries;
    for (const auto& entry : build_())
        entries += {idOf(entry, static_cast<int>(entries.size())), propertiesOfEntry(entry), entry.action};
    const bool isOther = entries != entries_;
    entries_ = std::move(entries);
    if (isOther)
        ++revision_;
    return isOther;
}

const BusMenu::Entry* BusMenu::find(int id) const
{
    const auto found = std::ranges::find(entries_, id, &Entry::id);
    return found == entries_.end() ? nullptr : &*found;
}

QVariantMap BusMenu::propertiesOf(int id, const QStringList& names) const
{
    if (id == root)
        return chosen({{QStringLiteral("children-display"), QStringLiteral("submenu")}}, names);
    const auto* const entry = find(id);
    return entry == nullptr ? QVariantMap() : chosen(entry->properties, names);
}

uint BusMenu::GetLayout(
    int parentId, int recursionDepth, const QStringList& propertyNames, BusMenuLayout& layout)
{
    rebuild();
    layout = {parentId, propertiesOf(parentId, propertyNames), {}};
    if (parentId == root && recursionDepth != 0) {
        for (const auto& entry : std::as_const(entries_))
            layout.children += {entry.id, chosen(entry.properties, propertyNames), {}};
    }
    return revision_;
}

QList<BusMenuProperties> BusMenu::GetGroupProperties(const QList<int>& ids, const QStringList& propertyNames)
{
    QList<BusMenuProperties> result;
    const auto add = [&](int id) { result += {id, propertiesOf(id, propertyNames)}; };
    if (ids.isEmpty()) {  // Empty means all of them.
        add(root);
        for (const auto& entry : std::as_const(entries_))
            add(entry.id);
    }
    for (const int id : ids) {
        if (id == root || find(id) != nullptr)
            add(id);
    }
    return result;
}

QDBusVariant BusMenu::GetProperty(int id, const QString& name)
{
    const auto value = propertiesOf(id, {}).value(name);
    return QDBusVariant(value.isValid() ? value : QVariant(QString()));
}

void BusMenu::Event(int id, const QString& event, const QDBusVariant& /*data*/, uint /*time*/)
{
    if (event == QLatin1String("opened") && id == root)
        opens_();
    const auto* const entry = event == QLatin1String("clicked") ? find(id) : nullptr;
    // Deferred: replies to the bar before anything opens or the program quits.
    if (entry != nullptr && entry->action)
        QTimer::singleShot(0, this, entry->action);
}

QList<int> BusMenu::EventGroup(const QList<BusMenuEvent>& events)
{
    QList<int> unknown;
    for (const auto& event : events) {
        if (event.id != root && find(event.id) == nullptr)
            unknown += event.id;
        else
            Event(event.id, event.event, event.data, event.time);
    }
    return unknown;
}

bool BusMenu::AboutToShow(int id)
{
    if (id != root)
        return false;
    opens_();
    const bool isOther = rebuild();
    if (isOther)
        Q_EMIT LayoutUpdated(revision_, root);
    return isOther;
}

QList<int> BusMenu::AboutToShowGroup(const QList<int>& ids, QList<int>& idErrors)
{
    QList<int> toUpdate;
    for (const int id : ids) {
        if (id != root && find(id) == nullptr)
            idErrors += id;
        else if (AboutToShow(id))
            toUpdate += id;
    }
    return toUpdate;
}

}  // namespace fadeloom
