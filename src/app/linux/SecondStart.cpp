// SPDX-License-Identifier: MIT
#include "app/linux/SecondStart.h"

#include <QFile>
#include <QStandardPaths>

namespace fadeloom {

namespace {

constexpr int isRunningStatus = 3;

}  // namespace

std::filesystem::path instanceFolder()
{
    return QFile::encodeName(QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation)).toStdString();
}

std::optional<EarlyEnd> secondStart(SingleInstance::Start start, InstanceRequest request)
{
    switch (start) {
    case SingleInstance::Start::first:
        return std::nullopt;
    case SingleInstance::Start::answered:
        if (request == InstanceRequest::open)
            return EarlyEnd{"it is running already; its panel is open now", 0};
        return EarlyEnd{
            "it is running already; two would take each other's applications away", isRunningStatus};
    case SingleInstance::Start::withoutPanel:
        return EarlyEnd{"it is running already, without a panel (--headless)", isRunningStatus};
    case SingleInstance::Start::unanswered:
        break;
    }
    return EarlyEnd{"it is running already, but does not answer", 1};
}

}  // namespace fadeloom
