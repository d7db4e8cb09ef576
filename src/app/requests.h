// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include "host/platform.h"

#include <vector>

namespace zel {

/// The boxes open over the window, in the order they were opened. Each goes
/// to the face to be shown; it stays open until the face gives its answer
/// back, and what waited for the answer then goes on.
class RequestQueue : public Dialogs {
  public:
    explicit RequestQueue(Interaction& ui) : m_ui(ui) {}

    void message(MessageIcon icon, std::string_view title,
                 std::vector<std::string> paragraphs) override;
    void ask(Request request, Then<const Answer&> then) override;
    /// The answer to the box `id`; false when no such box is open.
    bool answer(int id, const Answer& answer);
    /// The boxes open now, the first shown.
    std::vector<Request> open() const;
    bool empty() const { return m_open.empty(); }

  private:
    struct Open {
        Request request;
        Then<const Answer&> then; ///< empty for a message
    };
    void push(Open open);

    Interaction& m_ui;
    int m_lastId = 0;
    std::vector<Open> m_open;
};

} // namespace zel
