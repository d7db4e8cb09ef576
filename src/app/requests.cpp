// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "app/requests.h"

#include <algorithm>

namespace zel {

void RequestQueue::message(MessageIcon icon, std::string_view title,
                           std::vector<std::string> paragraphs) {
    push({{.kind = Request::Kind::Message,
           .icon = icon,
           .title = std::string(title),
           .paragraphs = std::move(paragraphs)},
          {}});
}

void RequestQueue::ask(Request request, Then<const Answer&> then) {
    push({std::move(request), std::move(then)});
}

void RequestQueue::push(Open open) {
    open.request.id = ++m_lastId;
    const Request shown = open.request;
    m_open.push_back(std::move(open));
    // The face may answer at once (a script does): the box is open by then.
    m_ui.open(shown);
}

bool RequestQueue::answer(int id, const Answer& answer) {
    const auto found = std::find_if(m_open.begin(), m_open.end(),
                                    [id](const Open& open) { return open.request.id == id; });
    if (found == m_open.end()) {
        return false;
    }
    const Then<const Answer&> then = std::move(found->then);
    m_open.erase(found);
    if (then) {
        then(answer);
    }
    return true;
}

std::vector<Request> RequestQueue::open() const {
    std::vector<Request> requests;
    for (const Open& open : m_open) {
        requests.push_back(open.request);
    }
    return requests;
}

} // namespace zel
