// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "platform/qthttp.h"

#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkInformation>
#include <QNetworkProxyFactory>
#include <QNetworkReply>
#include <QTimer>

namespace zel {

QtHttp::QtHttp() : QtHttp(Limits{}) {}

QtHttp::QtHttp(Limits limits) : m_limits(limits) {}

QtHttp::~QtHttp() = default;

bool QtHttp::connected(std::string& connectionType) {
    using Info = QNetworkInformation;
    if (!Info::instance()) {
        Info::loadBackendByFeatures(Info::Feature::Reachability);
    }
    const Info* info = Info::instance();
    if (!info) {
        connectionType = "Unknown";
        return true; // no backend on this system: nobody can tell
    }
    switch (info->transportMedium()) {
    case Info::TransportMedium::Ethernet:
    case Info::TransportMedium::WiFi:
        connectionType = "LAN";
        break;
    case Info::TransportMedium::Cellular:
    case Info::TransportMedium::Bluetooth:
        connectionType = "Modem";
        break;
    case Info::TransportMedium::Unknown:
        connectionType = "Configured";
        break;
    }
    return info->reachability() != Info::Reachability::Disconnected;
}

HttpReply QtHttp::get(const std::string& url) {
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
    QEventLoop loop;
    QTimer clock;
    clock.setSingleShot(true);
    bool tooLarge = false;
    bool tooSlow = false;
    QObject::connect(reply, &QNetworkReply::downloadProgress, &loop,
                     [&](qint64 received, qint64 total) {
                         if (received > m_limits.bytes || total > m_limits.bytes) {
                             tooLarge = true;
                             reply->abort();
                         }
                     });
    QObject::connect(&clock, &QTimer::timeout, &loop, [&] {
        tooSlow = true;
        reply->abort();
    });
    QObject::connect(reply, &QNetworkReply::finished, &loop, &QEventLoop::quit);
    clock.start(m_limits.milliseconds);
    if (!reply->isFinished()) {
        loop.exec();
    }
    clock.stop();

    HttpReply result;
    if (tooLarge) {
        result.error = QNetworkReply::UnknownContentError;
        const long long mebibyte = 1 << 20;
        result.errorText =
            "The reply is larger than " + (m_limits.bytes % mebibyte == 0
                                               ? std::to_string(m_limits.bytes / mebibyte) + " MiB"
                                               : std::to_string(m_limits.bytes) + " bytes");
    } else if (tooSlow) {
        result.error = QNetworkReply::TimeoutError;
        result.errorText =
            "No complete reply within " + std::to_string(m_limits.milliseconds / 1000) + " seconds";
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
    delete reply;
    return result;
}

} // namespace zel
