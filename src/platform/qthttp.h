// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include "host/platform.h"

#include <memory>

class QNetworkAccessManager;

namespace zel {

/// HTTP with QtNetwork: HTTPS, redirects followed (never from HTTPS down to
/// HTTP), each transfer at most `Limits` long and large. A transfer runs in the
/// caller's event loop and hands its outcome over when it ends.
class QtHttp : public Network {
  public:
    struct Limits {
        int milliseconds = 15'000;
        long long bytes = 1 << 20;
    };

    QtHttp();
    explicit QtHttp(Limits limits);
    ~QtHttp() override;

    /// Asks QNetworkInformation where a backend exists; "unknown" counts as connected.
    bool connected() override;
    void get(const std::string& url, Then<HttpReply> then) override;

  private:
    Limits m_limits;
    std::unique_ptr<QNetworkAccessManager> m_manager; // made on the first transfer
};

} // namespace zel
