// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include "host/platform.h"

#include <memory>

namespace zel {

/// HTTP that loads its module (Qt Network) when it is first asked something,
/// that is when a download starts.
class LazyNetwork : public Network {
  public:
    LazyNetwork();
    ~LazyNetwork() override;

    bool connected() override;
    void get(const std::string& url, Then<HttpReply> then) override;

  private:
    Network* network();

    std::unique_ptr<Network> m_network;
    std::string m_error; ///< why the module could not be loaded
};

} // namespace zel

/// The HTTP module's one function: a new Network owned by the caller.
extern "C" zel::Network* zelflightab_create_network();
