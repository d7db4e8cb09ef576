// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "platform/qthttp.h"

#include <QNetworkAccessManager>
#include <QNetworkInformation>
#include <QNetworkProxyFactory>
#include <QNetworkReply>
#include <QTimer>

#include <memory>

namespace zel {

QtHttp::QtHttp() : QtHttp(Limits{}) {}

QtHttp::QtHttp(Limits limits) : m_limits(limits) {}

QtHttp::~QtHttp() = default;

bool QtHttp::connected() {
    using Info = QNetworkInformation;
    if (!Info::instance()) {
        Info::loadBackendByFeatures(Info::Feature::Reachability);
    }
    const Info* info = Info::instance();
    // Without a backend on this system nobody can tell: the transfer will.
    return info == nullptr || info->reachability() != Info::Reachability::Disconnected;
}

void QtHttp::get(const std::string& url, Then<HttpReply> then) {
    if (!m_manager) {
        QNetworkProxyFactory::setUseSystemConfiguration(true);
        m_manager = std::make_unique<QNetworkAccessManager>();
    }
    // The URL arrives encoded already; take it byte for byte.
    QNetworkRequest request(QUrl::fromEncoded(QByteArray::fromStdString(url)));
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::NoLessSafeRedirectPolicy);
    request.setHeader(QNetworkRequest::UserAgentHeader, QStringLiteral("zelFLIGHTAB"));

    QNetworkReply* reply = m_manager->get(request);
    auto tooLarge = std::make_shared<bool>(false);
    auto tooSlow = std::make_shared<bool>(false);
    // The whole transfer, not just a pause in it, is held to the time limit.
    auto* clock = new QTimer(reply);
    clock->setSingleShot(true);
    QObject::connect(clock, &QTimer::timeout, reply, [reply, tooSlow] {
        *tooSlow = true;
        reply->abort();
    });
    clock->start(m_limits.milliseconds);
    const long long limit = m_limits.bytes;
    QObject::connect(reply, &QNetworkReply::downloadProgress, reply,
                     [reply, tooLarge, limit](qint64 received, qint64 total) {
                         if (received > limit || total > limit) {
                             *tooLarge = true;
                             reply->abort();
                         }
                     });
    QObject::connect(
        reply, &QNetworkReply::finished, reply,
        [reply, tooLarge, tooSlow, limits = m_limits, then = std::move(then)] {
            reply->deleteLater();
            HttpReply result;
            if (*tooLarge) {
                result.error = QNetworkReply::UnknownContentError;
                const long long mebibyte = 1 << 20;
                result.errorText =
                    "The reply is larger than " +
                    (limits.bytes % mebibyte == 0 ? std::to_string(limits.bytes / mebibyte) + " MiB"
                                                  : std::to_string(limits.bytes) + " bytes");
            } else if (*tooSlow) {
                result.error = QNetworkReply::TimeoutError;
                result.errorText = "No complete reply within " +
                                   std::to_string(limits.milliseconds / 1000) + " seconds";
            } else if (reply->error() != QNetworkReply::NoError) {
                result.error = reply->error();
                result.errorText = reply->errorString().toStdString();
            } else {
                result.body = reply->readAll().toStdString();
                result.ok = !result.body.empty();
                if (!result.ok) {
                    result.error = QNetworkReply::UnknownContentError;
                    result.errorText = "The server sent an empty reply";
                }
            }
            then(std::move(result));
        });
}

} // namespace zel
