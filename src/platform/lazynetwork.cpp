// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "platform/lazynetwork.h"

#include "platform/modules.h"

namespace zel {

LazyNetwork::LazyNetwork() = default;
LazyNetwork::~LazyNetwork() = default;

Network* LazyNetwork::network() {
    if (!m_network && m_error.empty()) {
        if (void* create = modules::load("http", "zelflightab_create_network", m_error)) {
            m_network.reset(reinterpret_cast<decltype(&zelflightab_create_network)>(create)());
        }
    }
    return m_network.get();
}

bool LazyNetwork::connected() {
    if (Network* real = network()) {
        return real->connected();
    }
    return true; // the transfer will say what is missing
}

void LazyNetwork::get(const std::string& url, Then<HttpReply> then) {
    if (Network* real = network()) {
        real->get(url, std::move(then));
        return;
    }
    then({false, 1, "Cannot load the download module: " + m_error, {}});
}

} // namespace zel
