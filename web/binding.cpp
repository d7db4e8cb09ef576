// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
// The calculator for the web face: Menu's events and state for app.js, and the
// platform pieces that the page gives (its dialogs, its bell, the browser's
// storage). app.js renders what this reports and forwards what the user does;
// it reads no page's figures itself.
#include "app/menu.h"
#include "jsplatform.h"

#include <emscripten/bind.h>
#include <emscripten/val.h>

#include <cmath>
#include <map>
#include <memory>
#include <utility>

namespace zel {
namespace {

using emscripten::val;

val ui() {
    return val::module_property("zelUi");
}

/// The page's own modal dialogs, drawn by app.js; an answer comes back
/// through Calculator::answer.
class PageInteraction : public Interaction {
  public:
    void beep() override { ui().call<void>("beep"); }
    void message(MessageIcon icon, std::string_view title, std::string_view text) override {
        ui().call<void>("message", std::string(messageIconName(icon)), std::string(title),
                        std::string(text));
    }
    void ask(const Request& request, Then<const Answer&> then) override {
        const int id = ++m_next;
        m_waiting.emplace(id, std::move(then));
        ui().call<void>("ask", id, request.kind == Request::Kind::Input, request.title,
                        request.text);
    }
    void setBusy(bool busy) override { ui().call<void>("busy", busy); }
    void quit() override { ui().call<void>("quit"); }

    void answer(int id, const Answer& answer) {
        const auto it = m_waiting.find(id);
        if (it != m_waiting.end()) {
            const Then<const Answer&> then = std::move(it->second);
            m_waiting.erase(it);
            then(answer);
        }
    }

  private:
    int m_next = 0;
    std::map<int, Then<const Answer&>> m_waiting;
};

/// The files in the browser's storage (IndexedDB, mirrored in memory by
/// app.js so that a read never waits). A change of the settings is applied at
/// once to this tab's copy, then again under a Web Lock to the stored file as
/// it then is, so that two tabs writing at once lose nothing.
class BrowserStorage : public Storage {
  public:
    std::string programFolder() override { return "zelFLIGHTAB"; }
    FileRead read(const std::string& path) override {
        const val bytes = ui().call<val>("readFile", path);
        if (bytes.isNull() || bytes.isUndefined()) {
            return {FileRead::Status::Missing, {}};
        }
        return {FileRead::Status::Ok, bytes.as<std::string>()};
    }
    bool write(const std::string& path, std::string_view bytes) override {
        return ui().call<bool>("writeFile", path, view(bytes));
    }
    void remove(const std::string& path) override { ui().call<void>("removeFile", path); }
    bool update(const std::string& path, const Change& change) override {
        const auto now = change(read(path));
        if (!now) {
            return false;
        }
        const int id = ++m_next;
        m_changes.emplace(id, change);
        return ui().call<bool>("updateFile", id, path, view(*now));
    }

    /// The change `id` applied to the stored file as it is under the lock:
    /// its new bytes, or null to leave it alone. The change is then done.
    val apply(int id, const val& stored) {
        const auto it = m_changes.find(id);
        if (it == m_changes.end()) {
            return val::null();
        }
        const Change change = std::move(it->second);
        m_changes.erase(it);
        FileRead file{FileRead::Status::Missing, {}};
        if (!stored.isNull() && !stored.isUndefined()) {
            file = {FileRead::Status::Ok, stored.as<std::string>()};
        }
        const auto result = change(file);
        // A copy: the view into this module's memory would not outlive the call.
        return result ? val::global("Uint8Array").call<val>("from", view(*result)) : val::null();
    }

  private:
    static val view(std::string_view bytes) {
        return val(emscripten::typed_memory_view(
            bytes.size(), reinterpret_cast<const unsigned char*>(bytes.data())));
    }

    int m_next = 0;
    std::map<int, Change> m_changes;
};

/// One row as app.js draws it.
val rowObject(const RowCell& cell) {
    val row = val::object();
    row.set("unit", cell.unit);
    row.set("caption", cell.caption);
    row.set("compact", cell.compact);
    row.set("input", cell.input);
    row.set("given", cell.isGiven() && !cell.input);
    return row;
}

} // namespace

/// The one calculator of the page.
class Calculator {
  public:
    explicit Calculator(const std::string& locale)
        : m_regional(locale.empty() ? std::nullopt : std::optional<std::string>(locale)) {}

    // Events, as the window sends them.
    void load() { m_menu.Form_Load(); }
    void activate() { m_menu.Form_Activate(); }
    void keyPress(int character) { m_menu.Form_KeyPress(static_cast<char32_t>(character)); }
    void keyUp(int code) { m_menu.Form_KeyUp(code); }
    void openPage(int page) { m_menu.LabMenu_Click(page); }
    void backToMenu() { m_menu.LabelMenu_Click(); }
    void clickRow(int row) { m_menu.LabValue_Click(row); }
    void pressOperator(int key) { m_menu.LabOP_Click(key); }
    void clear() { m_menu.LabC_Click(); }
    void pressMemory(int key) { m_menu.LabMEM_Click(key); }
    void pressDigits() { m_menu.LabDEC_Click(); }
    void paste(const std::string& text) { m_menu.Form_Paste(text); }
    void answer(int id, bool yes, const val& text) {
        Answer answer{yes, std::nullopt};
        if (text.isString()) {
            answer.text = text.as<std::string>();
        }
        m_interaction.answer(id, answer);
    }
    val applyChange(int id, const val& stored) { return m_storage.apply(id, stored); }

    // What the page shows.
    std::string displayNumber() const { return m_menu.displayNumber(); }
    std::string pageText() const { return m_menu.pageText(); }
    std::string ratesNote() { return m_menu.ratesNote(); }
    bool busy() const { return m_menu.busy(); }

    val state() const {
        val s = val::object();
        const bool page = m_menu.face() == Face::Page;
        s.set("face", std::string(page ? "page" : "menu"));
        s.set("page", m_menu.currentPage());
        s.set("title", m_menu.title());
        s.set("icon", std::string(page ? m_menu.page()->icon : "app"));
        s.set("report", page && m_menu.page()->isText());
        s.set("display", m_menu.display());
        s.set("displayCompact", m_menu.displayCompact());
        s.set("digits", m_menu.digitsCaption());
        s.set("panels", m_menu.panelsVisible());
        val memory = val::array();
        for (int key = 0; key < 3; ++key) {
            val m = val::object();
            m.set("caption", m_menu.memoryCaption(key));
            m.set("lit", m_menu.memoryLit(key));
            memory.call<void>("push", m);
        }
        s.set("memory", memory);
        val lit = val::array();
        for (int key = 0; key <= ScratchPad::Operators; ++key) {
            lit.call<void>("push", m_menu.operatorLit(key));
        }
        s.set("operators", lit);
        val rows = val::array();
        for (int row = 1; row <= PageSheet::Rows; ++row) {
            rows.call<void>("push", rowObject(m_menu.row(row)));
        }
        s.set("rows", rows);
        return s;
    }

    /// The menu's buttons: number, name, icon, the F-key drawn and the one
    /// that opens it, in the menu's order.
    val pages() const {
        val list = val::array();
        for (int number = 1; number <= m_menu.pages().count(); ++number) {
            const PageTable* table = m_menu.pages().find(number);
            if (table == nullptr) {
                continue;
            }
            val p = val::object();
            p.set("number", number);
            p.set("name", std::string(table->name));
            p.set("icon", std::string(table->icon));
            p.set("key", std::string(table->keyCaption));
            // The key that opens it, which is not always the one drawn.
            p.set("functionKey", table->functionKey);
            list.call<void>("push", p);
        }
        return list;
    }

    /// A row's number in exponent form with at most `digits` significant
    /// digits, after its side letter ("R 1.5E+20"), for a cell too narrow for
    /// it; empty when the row holds no number to shorten.
    std::string rowShort(int row, int digits) const {
        const RowCell& cell = m_menu.row(row);
        const double v = textValue(cell.tag, m_menu.symbols());
        if (!(cell.held || v != 0)) {
            return {};
        }
        return cell.prefix +
               exponentText(cell.prefix.empty() ? v : std::fabs(v), digits, m_menu.symbols());
    }
    /// The display's number in exponent form; empty on a report page.
    std::string displayShort(int digits) const {
        if (m_menu.face() == Face::Page && m_menu.page()->isText()) {
            return {};
        }
        return exponentText(m_menu.scratchPad().inputValue(), digits, m_menu.symbols());
    }

  private:
    PageInteraction m_interaction;
    IntlRegional m_regional;
    BrowserStorage m_storage;
    bool m_placed = placeShippedSettings(m_storage);
    FetchNetwork m_network;
    DateClock m_clock;
    Platform m_platform{m_interaction, m_regional, m_storage, m_network, m_clock};
    Menu m_menu{m_platform};
};

} // namespace zel

EMSCRIPTEN_BINDINGS(zel_calculator) {
    using zel::Calculator;
    emscripten::class_<Calculator>("Calculator")
        .constructor<const std::string&>()
        .function("load", &Calculator::load)
        .function("activate", &Calculator::activate)
        .function("keyPress", &Calculator::keyPress)
        .function("keyUp", &Calculator::keyUp)
        .function("openPage", &Calculator::openPage)
        .function("backToMenu", &Calculator::backToMenu)
        .function("clickRow", &Calculator::clickRow)
        .function("pressOperator", &Calculator::pressOperator)
        .function("clear", &Calculator::clear)
        .function("pressMemory", &Calculator::pressMemory)
        .function("pressDigits", &Calculator::pressDigits)
        .function("paste", &Calculator::paste)
        .function("answer", &Calculator::answer)
        .function("applyChange", &Calculator::applyChange)
        .function("displayNumber", &Calculator::displayNumber)
        .function("pageText", &Calculator::pageText)
        .function("ratesNote", &Calculator::ratesNote)
        .function("busy", &Calculator::busy)
        .function("state", &Calculator::state)
        .function("pages", &Calculator::pages)
        .function("rowShort", &Calculator::rowShort)
        .function("displayShort", &Calculator::displayShort);
}
