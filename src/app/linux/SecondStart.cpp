// SPDX-License-Identifier: MIT
#include "app/linux/SecondStart.h"

#include "app/RunningAlready.h"

#include <QFile>
#include <QStandardPaths>

namespace fadeloom {

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
        return request == InstanceRequest::open ? runningAlready::panelIsOpen()
                                                : runningAlready::wouldCompete();
    case SingleInstance::Start::withoutPanel:
        return runningAlready::withoutPanel();
    case SingleInstance::Start::unanswered:
        break;
    }
    return EarlyEnd{"it is running already, but does not answer", 1};
}

}  // namespace fadeloom
