// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
// The HTTP module: Qt Network, loaded when a download starts.
#include "platform/lazynetwork.h"
#include "platform/qthttp.h"

#include <QtGlobal>

extern "C" Q_DECL_EXPORT zel::Network* zelflightab_create_network() {
    return new zel::QtHttp();
}
