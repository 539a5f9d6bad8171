// SPDX-License-Identifier: MIT
#include "app/linux/BusInterface.h"

#include <QXmlStreamReader>

namespace fadeloom {
namespace {

/// The XML of an interface's element.
QString elementIn(const QString& text, const QString& name)
{
    const auto end = QStringLiteral("</interface>\n");
    const auto begin = text.indexOf(QStringLiteral("<interface name=\"%1\"").arg(name));
    return text.mid(begin, text.indexOf(end, begin) + end.size() - begin);
}

}  // namespace

BusInterfaces readBusInterfaces(const QString& text)
{
    BusInterfaces interfaces;
    BusInterface* interface = nullptr;
    QString property;
    QString method;
    QXmlStreamReader xml(text);
    while (!xml.atEnd()) {
        const auto token = xml.readNext();
        const auto tag = xml.name();
        const auto value = [&](const char* name) {
            return xml.attributes().value(QLatin1String(name)).toString();
        };
        if (token != QXmlStreamReader::StartElement)
            continue;
        if (tag == QLatin1String("interface")) {
            interface = &interfaces[value("name")];
            interface->xml = elementIn(text, value("name"));
        } else if (tag == QLatin1String("property")) {
            property = value("name");
            interface->properties[property] = {
                value("type"), value("access") == QLatin1String("readwrite"), false};
        } else if (tag == QLatin1String("annotation") && value("value") == QLatin1String("const")) {
            interface->properties[property].isConstant = true;
        } else if (tag == QLatin1String("method")) {
            method = value("name");
            interface->methods[method];
        } else if (tag == QLatin1String("arg") && value("direction") == QLatin1String("in")) {
            interface->methods[method] += value("type");
        }
    }
    return interfaces;
}

}  // namespace fadeloom
