// SPDX-License-Identifier: MIT
#include "platform/qt/QtHttpClient.h"

#include <QNetworkReply>
#include <QNetworkRequest>
#include <QTimer>
#include <QUrl>

#include <string>
#include <utility>

namespace fadeloom {

namespace {

QNetworkRequest networkRequest(const HttpRequest& request)
{
    QNetworkRequest result(QUrl(QString::fromStdString(request.url), QUrl::StrictMode));
    result.setHeader(QNetworkRequest::UserAgentHeader, QString::fromStdString(request.userAgent));
    result.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
    result.setAttribute(QNetworkRequest::CacheSaveControlAttribute, false);
    // Also bypasses caches on the network.
    result.setRawHeader("Cache-Control", "no-cache");
    result.setRawHeader("Pragma", "no-cache");
    result.setRawHeader("Accept-Language", "*");  // Qt would send the user's language.
    result.setRawHeader("Accept-Encoding", "identity");  // A compressed response may be larger than it seems.
    result.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    result.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    result.setAttribute(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
    result.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::NoLessSafeRedirectPolicy);
    return result;
}

/// Whether the server has responded, even with an error status, which Qt also reports as an error.
bool isAnswer(const QNetworkReply& reply)
{
    const auto error = reply.error();
    const bool isRefusal =
        (error > QNetworkReply::UnknownProxyError && error <= QNetworkReply::UnknownContentError)
        || error == QNetworkReply::ProtocolInvalidOperationError
        || (error > QNetworkReply::ProtocolFailure && error <= QNetworkReply::UnknownServerError);
    return error == QNetworkReply::NoError || isRefusal;
}

}  // namespace

class QtHttpClient::Exchange {
public:
    /// `ended` is called once, from within a signal of Qt's: objects must not be destroyed in it immediately.
    Exchange(QNetworkAccessManager& network, const HttpRequest& request, Answered answered,
        std::function<void()> ended)
        : largestBody_(request.largestBody)
        , answered_(std::move(answered))
        , ended_(std::move(ended))
        , reply_(network.get(networkRequest(request)))
    {
        // Reads no more than allowed; the additional byte detects a longer response.
        reply_->setReadBufferSize(static_cast<qint64>(largestBody_) + 1);
        QObject::connect(reply_.get(), &QNetworkReply::readyRead, reply_.get(), [this] { read(); });
        QObject::connect(reply_.get(), &QNetworkReply::finished, reply_.get(), [this] { finish(); });
        QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { end(std::nullopt); });
        timer_.setSingleShot(true);
        timer_.setTimerType(Qt::PreciseTimer);
        timer_.start(request.timeout);
    }
    Exchange(const Exchange&) = delete;
    Exchange& operator=(const Exchange&) = delete;
    ~Exchange()
    {
        reply_->disconnect();
        reply_->abort();
    }

    [[nodiscard]] std::function<void()> answer()
    {
        return [answered = std::move(answered_), response = std::move(response_)] { answered(response); };
    }

private:
    void read()
    {
        if (isEnded_)
            return;
        body_ += reply_->read(static_cast<qint64>(largestBody_ - body_.size()) + 1).toStdString();
        if (body_.size() > largestBody_)
            end(std::nullopt);
    }

    void finish()
    {
        read();
        const int status = reply_->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
        const bool isWhole = isAnswer(*reply_) && status != 0;
        end(isWhole ? std::optional(HttpResponse{status, std::move(body_)}) : std::nullopt);
    }

    void end(std::optional<HttpResponse> response)
    {
        if (std::exchange(isEnded_, true))
            return;
        response_ = std::move(response);
        timer_.stop();
        reply_->abort();
        ended_();
    }

    const std::size_t largestBody_;
    Answered answered_;
    const std::function<void()> ended_;
    const std::unique_ptr<QNetworkReply> reply_;
    QTimer timer_;
    std::string body_;
    std::optional<HttpResponse> response_;
    bool isEnded_ = false;
};

QtHttpClient::QtHttpClient() = default;

QtHttpClient::~QtHttpClient() = default;

void QtHttpClient::get(const HttpRequest& request, Answered answered)
{
    const auto scheme = QUrl(QString::fromStdString(request.url)).scheme();
    if (scheme != QLatin1String("http") && scheme != QLatin1String("https"))
        return later([answered = std::move(answered)] { answered(std::nullopt); });
    const auto number = ++lastNumber_;
    exchanges_.emplace(number,
        std::make_unique<Exchange>(
            network_, request, std::move(answered), [this, number] { later([=, this] { end(number); }); }));
}

void QtHttpClient::end(std::uint64_t number)
{
    const auto answer = exchanges_.at(number)->answer();
    exchanges_.erase(number);
    answer();  // It may destroy this object.
}

void QtHttpClient::later(std::function<void()> task)
{
    QMetaObject::invokeMethod(&turns_, std::move(task), Qt::QueuedConnection);
}

}  // namespace fadeloom
