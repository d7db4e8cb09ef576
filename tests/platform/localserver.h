// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include <QByteArray>
#include <QMap>
#include <QTcpServer>
#include <QTcpSocket>

namespace zel::test {

/// A small HTTP server on 127.0.0.1, run by the test's own event loop. Each
/// path (with its query, or else without) answers as its Route says; an
/// unknown one is a 404.
class LocalServer : public QTcpServer {
  public:
    struct Route {
        int status = 200;
        QByteArray body;
        QByteArray location; ///< a redirect's target
        bool silent = false; ///< takes the request and never answers
    };

    LocalServer() {
        listen(QHostAddress::LocalHost);
        connect(this, &QTcpServer::newConnection, this, [this] {
            while (QTcpSocket* socket = nextPendingConnection()) {
                connect(socket, &QTcpSocket::readyRead, socket, [this, socket] { answer(socket); });
            }
        });
    }

    QMap<QByteArray, Route> routes;
    QList<QByteArray> requested; ///< path and query of each request, in order

    QByteArray url(const QByteArray& path) const {
        return "http://127.0.0.1:" + QByteArray::number(serverPort()) + path;
    }

  private:
    void answer(QTcpSocket* socket) {
        QByteArray& request = m_pending[socket];
        request += socket->readAll();
        if (!request.contains("\r\n\r\n")) {
            return;
        }
        const QByteArray target = request.split(' ').value(1);
        m_pending.remove(socket);
        requested.append(target);
        const QByteArray path = target.left(target.indexOf('?'));
        const Route route = routes.value(
            target, routes.value(path, Route{404, "<html>not found</html>", {}, false}));
        if (route.silent) {
            return;
        }
        QByteArray reply = "HTTP/1.1 " + QByteArray::number(route.status) + " X\r\n";
        if (!route.location.isEmpty()) {
            reply += "Location: " + route.location + "\r\n";
        }
        reply += "Content-Length: " + QByteArray::number(route.body.size()) +
                 "\r\nConnection: close\r\n\r\n" + route.body;
        socket->write(reply);
        socket->disconnectFromHost();
    }

    QMap<QTcpSocket*, QByteArray> m_pending;
};

} // namespace zel::test
