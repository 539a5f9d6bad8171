// SPDX-License-Identifier: MIT
#include "platform/linux/FileManager.h"

#include "platform/SystemLog.h"
#include "platform/linux/FileUri.h"
#include "platform/linux/LinuxEnvironment.h"
#include "platform/linux/ProgramFiles.h"
#include "platform/linux/SafeText.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusError>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QEvent>
#include <QFile>
#include <QProcess>
#include <QThread>

#include <string>
#include <utility>
#include <vector>

namespace fadeloom {

namespace {

QString qString(const std::string& text)
{
    return QString::fromStdString(text);
}

/// A file on its way to the thread.
class FileEvent final : public QEvent {
public:
    explicit FileEvent(std::filesystem::path itsFile)
        : QEvent(QEvent::User)
        , file(std::move(itsFile))
    {
    }

    const std::filesystem::path file;
};

}  // namespace

/// Lives on the thread, and with it the answers that are waited for: all but the constructor, the destructor and
/// `reveal` runs there.
class FileManager::Worker final : public QObject {
public:
    Worker(SystemLog& log, const Variables& variables)
        : log_(log)
        , programFolders_(linuxEnvironment(variables).programFolders)
    {
        moveToThread(&thread_);
    }
    Worker(const Worker&) = delete;
    Worker& operator=(const Worker&) = delete;
    ~Worker() override
    {
        if (!thread_.isRunning())
            return;  // No file was shown, and no bus asked for.
        thread_.quit();
        thread_.wait();
        QDBusConnection::disconnectFromBus(connectionName);
    }

    void reveal(const std::filesystem::path& file)
    {
        thread_.start();  // Unless it runs.
        QCoreApplication::postEvent(this, new FileEvent{file});
    }

protected:
    void customEvent(QEvent* event) override { ask(static_cast<const FileEvent*>(event)->file); }

private:
    static inline const QString connectionName = "fadeloom-file-manager";

    [[nodiscard]] QDBusConnection connection() const
    {
        QDBusConnection known{connectionName};
        if (known.isConnected())
            return known;
        QDBusConnection::disconnectFromBus(connectionName);  // The bus has gone, and may have come again.
        return QDBusConnection::connectToBus(QDBusConnection::SessionBus, connectionName);
    }

    void ask(const std::filesystem::path& file)
    {
        const auto bus = connection();
        if (!bus.isConnected())
            return openFolder(file, bus.lastError().message().toStdString());
        auto showItems = QDBusMessage::createMethodCall("org.freedesktop.FileManager1",
            "/org/freedesktop/FileManager1", "org.freedesktop.FileManager1", "ShowItems");
        showItems << QStringList{qString(fileUri(file))} << QString{};  // The second one names no launch.
        const auto* const answer = new QDBusPendingCallWatcher{bus.asyncCall(showItems), this};
        QObject::connect(answer, &QDBusPendingCallWatcher::finished, this,
            [this, file](QDBusPendingCallWatcher* finished) {
                finished->deleteLater();
                if (finished->isError())
                    openFolder(file, finished->error().message().toStdString());
            });
    }

    /// `reason`: why the file itself cannot be shown.
    void openFolder(const std::filesystem::path& file, const std::string& reason)
    {
        const auto program = findProgram("xdg-open", programFolders_);
        QProcess opener;
        opener.setProgram(QFile::decodeName(program.c_str()));
        opener.setArguments({qString(fileUri(file.parent_path()))});
        opener.setStandardInputFile(QProcess::nullDevice());
        opener.setStandardOutputFile(QProcess::nullDevice());
        opener.setStandardErrorFile(QProcess::nullDevice());
        if (program.empty() || !opener.startDetached())
            log_.write(SystemLog::Level::notice,
                "Cannot show " + safeText(file.native()) + ": " + safeText(reason)
                    + "; nor is there xdg-open to open its folder");
    }

    SystemLog& log_;
    const std::vector<std::filesystem::path> programFolders_;
    QThread thread_;
};

FileManager::FileManager(SystemLog& log, const Variables& variables)
    : worker_(std::make_unique<Worker>(log, variables))
{
}

FileManager::~FileManager() = default;

void FileManager::reveal(const std::filesystem::path& file)
{
    std::error_code error;
    const auto absolute = std::filesystem::absolute(file, error);
    if (!error)
        worker_->reveal(absolute);
}

}  // namespace fadeloom
