// SPDX-License-Identifier: MIT
#include "platform/linux/FileManager.h"

#include "platform/SystemLog.h"
#include "platform/linux/DescriptorLimit.h"
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

#include <cctype>
#include <string>
#include <utility>
#include <vector>

namespace fadeloom {

namespace {

QString qString(const std::string& text)
{
    return QString::fromStdString(text);
}

/// A request for the thread: a file, or a URL.
class Request final : public QEvent {
public:
    explicit Request(std::filesystem::path itsFile)
        : QEvent(QEvent::User)
        , file(std::move(itsFile))
    {
    }
    explicit Request(std::string itsURL)
        : QEvent(QEvent::User)
        , url(std::move(itsURL))
    {
    }

    const std::filesystem::path file;
    const std::string url;
};

}  // namespace

/// Lives on the thread, along with pending replies: everything but the constructor, the destructor and `send` runs
/// there.
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
            return;  // There was no request, and thus no bus.
        thread_.quit();
        thread_.wait();
        QDBusConnection::disconnectFromBus(connectionName);
    }

    void send(std::unique_ptr<Request> request)
    {
        thread_.start();  // Unless it is running.
        QCoreApplication::postEvent(this, request.release());
    }

protected:
    void customEvent(QEvent* event) override
    {
        const auto& request = *static_cast<const Request*>(event);
        if (request.file.empty())
            openAddress(request.url);
        else
            ask(request.file);
    }

private:
    static inline const QString connectionName = "fadeloom-file-manager";

    [[nodiscard]] QDBusConnection connection() const
    {
        QDBusConnection known{connectionName};
        if (known.isConnected())
            return known;
        QDBusConnection::disconnectFromBus(connectionName);  // The bus has gone, and may have been restarted.
        return QDBusConnection::connectToBus(QDBusConnection::SessionBus, connectionName);
    }

    void ask(const std::filesystem::path& file)
    {
        const auto bus = connection();
        if (!bus.isConnected())
            return openFolder(file, bus.lastError().message().toStdString());
        auto showItems = QDBusMessage::createMethodCall("org.freedesktop.FileManager1",
            "/org/freedesktop/FileManager1", "org.freedesktop.FileManager1", "ShowItems");
        // The second argument is an empty startup id.
        showItems << QStringList{qString(fileUri(file))} << QString{};
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
        if (!startOpener(fileUri(file.parent_path())))
            log_.write(SystemLog::Level::notice,
                "Cannot show " + safeText(file.native()) + ": " + safeText(reason)
                    + "; nor is there xdg-open to open its folder");
    }

    void openAddress(const std::string& url)
    {
        if (!startOpener(url))
            log_.write(
                SystemLog::Level::notice, "Cannot open " + safeText(url) + ": there is no xdg-open to do it");
    }

    [[nodiscard]] bool startOpener(const std::string& uri) const
    {
        const auto program = findProgram("xdg-open", programFolders_);
        QProcess opener;
        opener.setProgram(QFile::decodeName(program.c_str()));
        opener.setArguments({qString(uri)});
        opener.setStandardInputFile(QProcess::nullDevice());
        opener.setStandardOutputFile(QProcess::nullDevice());
        opener.setStandardErrorFile(QProcess::nullDevice());
        const OriginalDescriptorLimit limit;
        return !program.empty() && opener.startDetached();
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
        worker_->send(std::make_unique<Request>(absolute));
}

void FileManager::open(const std::string& url)
{
    // A scheme before the colon, so that xdg-open cannot mistake it for a file or an option.
    const bool hasScheme = url.find("://") != std::string::npos && std::isalpha(url.front()) != 0;
    if (hasScheme)
        worker_->send(std::make_unique<Request>(url));
}

}  // namespace fadeloom
