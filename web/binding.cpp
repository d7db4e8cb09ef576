// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
// The calculator for the web face: Menu's calls and its view for the page's
// modules, and the platform pieces that the page gives (its boxes, its bell,
// the browser's storage). The page draws the view and forwards what the user
// does; it decides no rule and reads no figure itself.
#include "app/menu.h"
#include "app/options.h"
#include "jsplatform.h"

#include <emscripten/bind.h>
#include <emscripten/val.h>

#include <map>
#include <utility>

namespace zel {
namespace {

using emscripten::val;

val ui() {
    return val::module_property("zelUi");
}

/// The page's own boxes, bell and busy pointer, drawn by its modules; an
/// answer comes back through Calculator::answer.
class PageInteraction : public Interaction {
  public:
    void beep() override { ui().call<void>("beep"); }
    void open(const Request& request) override { ui().call<void>("open", requestObject(request)); }
    void setBusy(bool busy) override { ui().call<void>("busy", busy); }
    void quit() override { ui().call<void>("quit"); }

    static val requestObject(const Request& request) {
        static constexpr const char* Kinds[] = {"message", "question", "input"};
        val r = val::object();
        r.set("id", request.id);
        r.set("kind", std::string(Kinds[static_cast<int>(request.kind)]));
        r.set("icon", std::string(messageIconName(request.icon)));
        r.set("title", request.title);
        val paragraphs = val::array();
        for (const std::string& paragraph : request.paragraphs) {
            paragraphs.call<void>("push", paragraph);
        }
        r.set("paragraphs", paragraphs);
        return r;
    }
};

/// The files in the browser's storage (IndexedDB, mirrored in memory by the
/// page so that a read never waits). A write is made at once in this tab's
/// copy; the outcome of storing it comes back later through
/// Calculator::stored. A change of the settings is made again under a Web
/// Lock on the stored file as it then is, so that two tabs writing at once
/// lose nothing; one that cannot be stored leaves the stored file as it was.
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
    void write(const std::string& path, std::string_view bytes, Then<bool> done) override {
        ui().call<void>("writeFile", wait(std::move(done)), path, view(bytes));
    }
    void remove(const std::string& path) override { ui().call<void>("removeFile", path); }
    std::vector<std::string> list(const std::string& folder) override {
        return emscripten::vecFromJSArray<std::string>(ui().call<val>("listFiles", folder));
    }
    void update(const std::string& path, const Change& change, Then<bool> done) override {
        const auto now = change(read(path));
        if (!now) {
            done(false);
            return;
        }
        const int id = wait(std::move(done));
        m_changes.emplace(id, change);
        ui().call<void>("updateFile", id, path, view(*now));
    }

    /// The change `id` applied to the stored file as it is under the lock:
    /// its new bytes, or null to leave it alone.
    val apply(int id, const val& stored) {
        const auto it = m_changes.find(id);
        if (it == m_changes.end()) {
            return val::null();
        }
        FileRead file{FileRead::Status::Missing, {}};
        if (!stored.isNull() && !stored.isUndefined()) {
            file = {FileRead::Status::Ok, stored.as<std::string>()};
        }
        const auto result = it->second(file);
        // A copy: the view into this module's memory would not outlive the call.
        return result ? val::global("Uint8Array").call<val>("from", view(*result)) : val::null();
    }
    /// The write or change `id` has been stored, or could not be.
    void stored(int id, bool ok) {
        m_changes.erase(id);
        const auto it = m_waiting.find(id);
        if (it != m_waiting.end()) {
            const Then<bool> done = std::move(it->second);
            m_waiting.erase(it);
            done(ok);
        }
    }

  private:
    static val view(std::string_view bytes) {
        return val(emscripten::typed_memory_view(
            bytes.size(), reinterpret_cast<const unsigned char*>(bytes.data())));
    }
    int wait(Then<bool> done) {
        const int id = ++m_next;
        m_waiting.emplace(id, std::move(done));
        return id;
    }

    int m_next = 0;
    std::map<int, Change> m_changes;
    std::map<int, Then<bool>> m_waiting;
};

val strings(const std::vector<std::string>& list) {
    val array = val::array();
    for (const std::string& item : list) {
        array.call<void>("push", item);
    }
    return array;
}

val keyObject(const KeyView& key) {
    val k = val::object();
    k.set("caption", key.caption);
    k.set("lit", key.lit);
    return k;
}

val rowObject(const RowView& row) {
    val r = val::object();
    r.set("unit", row.unit);
    r.set("name", row.name);
    r.set("symbol", row.symbol);
    r.set("value", row.value);
    r.set("shortForms", strings(row.shortForms));
    r.set("emphasis", row.emphasis);
    r.set("exists", row.exists);
    r.set("input", row.input);
    r.set("given", row.given);
    r.set("computed", row.computed);
    r.set("outputOnly", row.outputOnly);
    r.set("key", row.key);
    r.set("hint", row.hint);
    r.set("detail", row.detail);
    return r;
}

val cellObject(const balance::LoadingCell& cell) {
    val c = val::object();
    c.set("text", cell.text);
    c.set("entry", cell.entry);
    c.set("input", cell.input);
    c.set("name", cell.name);
    return c;
}

val fieldObject(const balance::FormField& field) {
    val f = val::object();
    f.set("id", field.id);
    f.set("label", field.label);
    f.set("text", field.text);
    f.set("choices", strings(field.choices));
    return f;
}

val buttonObject(const balance::FormButton& button) {
    val b = val::object();
    b.set("caption", button.caption);
    b.set("kind", static_cast<int>(button.action.kind));
    b.set("group", button.action.group);
    b.set("item", button.action.item);
    return b;
}

val formObject(const balance::ProfileForm& form) {
    val f = val::object();
    f.set("title", form.title);
    val sections = val::array();
    for (const balance::FormSection& section : form.sections) {
        val s = val::object();
        s.set("title", section.title);
        val fields = val::array();
        for (const balance::FormField& field : section.fields) {
            fields.call<void>("push", fieldObject(field));
        }
        s.set("fields", fields);
        s.set("columns", strings(section.columns));
        val rows = val::array();
        for (const balance::FormRow& row : section.rows) {
            val r = val::object();
            val cells = val::array();
            for (const balance::FormField& field : row.fields) {
                cells.call<void>("push", fieldObject(field));
            }
            r.set("fields", cells);
            r.set("remove", row.remove ? buttonObject(*row.remove) : val::null());
            rows.call<void>("push", r);
        }
        s.set("rows", rows);
        val buttons = val::array();
        for (const balance::FormButton& button : section.buttons) {
            buttons.call<void>("push", buttonObject(button));
        }
        s.set("buttons", buttons);
        sections.call<void>("push", s);
    }
    f.set("sections", sections);
    val buttons = val::array();
    for (const balance::FormButton& button : form.buttons) {
        buttons.call<void>("push", buttonObject(button));
    }
    f.set("buttons", buttons);
    return f;
}

val pointsObject(const std::vector<balance::Mass>& points) {
    val list = val::array();
    for (const balance::Mass& m : points) {
        val p = val::array();
        p.call<void>("push", m.arm);
        p.call<void>("push", m.weight);
        list.call<void>("push", p);
    }
    return list;
}

val axisObject(const balance::Chart::Axis& axis) {
    val a = val::object();
    a.set("title", axis.title);
    a.set("low", axis.low);
    a.set("high", axis.high);
    val ticks = val::array();
    for (const auto& tick : axis.ticks) {
        val t = val::object();
        t.set("value", tick.value);
        t.set("label", tick.label);
        ticks.call<void>("push", t);
    }
    a.set("ticks", ticks);
    return a;
}

/// The chart in data units: points are [arm, weight].
val chartObject(const balance::Chart& chart) {
    val c = val::object();
    c.set("cg", axisObject(chart.cg));
    c.set("weight", axisObject(chart.weight));
    auto shapes = [](const std::vector<balance::Chart::Shape>& list) {
        val out = val::array();
        for (const auto& shape : list) {
            val s = val::object();
            s.set("name", shape.name);
            s.set("points", pointsObject(shape.points));
            s.set("inside", shape.inside);
            out.call<void>("push", s);
        }
        return out;
    };
    c.set("envelopes", shapes(chart.envelopes));
    c.set("lines", shapes(chart.lines));
    val marks = val::array();
    for (const auto& mark : chart.marks) {
        val m = val::object();
        m.set("name", mark.name);
        m.set("at", pointsObject({mark.at})[0]);
        m.set("inside", mark.inside);
        marks.call<void>("push", m);
    }
    c.set("marks", marks);
    c.set("description", chart.description);
    return c;
}

val loadingObject(const balance::LoadingView& v) {
    val l = val::object();
    val profiles = val::array();
    for (const auto& p : v.profiles) {
        val o = val::object();
        o.set("name", p.name);
        o.set("shipped", p.shipped);
        profiles.call<void>("push", o);
    }
    l.set("profiles", profiles);
    l.set("chosen", v.chosen);
    l.set("aircraft", v.aircraft);
    l.set("source", v.source);
    l.set("weightUnit", v.weightUnit);
    l.set("armUnit", v.armUnit);
    l.set("fuelUnit", v.fuelUnit);
    l.set("momentUnit", v.momentUnit);
    l.set("missing", v.missing);
    l.set("columns", strings(v.columns));
    val lines = val::array();
    for (const auto& line : v.lines) {
        val o = val::object();
        o.set("name", line.name);
        o.set("volume", cellObject(line.volume));
        o.set("weight", cellObject(line.weight));
        o.set("arm", cellObject(line.arm));
        o.set("moment", line.moment);
        o.set("mac", line.mac);
        o.set("total", line.total);
        o.set("flagged", line.flagged);
        o.set("note", line.note);
        lines.call<void>("push", o);
    }
    l.set("lines", lines);
    val limits = val::array();
    for (const auto& limit : v.limits) {
        val o = val::object();
        o.set("text", limit.text);
        o.set("holds", limit.holds);
        limits.call<void>("push", o);
    }
    l.set("limits", limits);
    l.set("withinLimits", v.withinLimits);
    l.set("verdict", v.verdict);
    l.set("chart", v.chart ? chartObject(*v.chart) : val::null());
    l.set("stations", strings(v.stations));
    l.set("savedLoadings", strings(v.savedLoadings));
    l.set("shiftFrom", v.shiftFrom);
    l.set("shiftTo", v.shiftTo);
    l.set("ballastAt", v.ballastAt);
    l.set("target", cellObject(v.target));
    l.set("shift", v.shift);
    l.set("ballast", v.ballast);
    l.set("heading", v.heading);
    l.set("sheet", v.sheet);
    l.set("exportName", v.exportName);
    l.set("canRename", v.canRename);
    l.set("canDelete", v.canDelete);
    l.set("editor", v.editor ? formObject(*v.editor) : val::null());
    return l;
}

constexpr const char* FaceActions[] = {
    "none",  "copyDisplay", "copyPage",  "paste",      "zoomIn",  "zoomOut",   "zoomReset",
    "night", "about",       "focusLeft", "focusRight", "focusUp", "focusDown", "pressFocused"};

/// A key as the page names it ("Enter", "F5", "ArrowLeft", or a character).
Chord chordOf(const val& event) {
    static const std::map<std::string, Key> Named{
        {"Backspace", Key::Backspace}, {"Enter", Key::Enter},
        {"Escape", Key::Escape},       {" ", Key::Space},
        {"Insert", Key::Insert},       {"ArrowLeft", Key::Left},
        {"ArrowRight", Key::Right},    {"ArrowUp", Key::Up},
        {"ArrowDown", Key::Down}};
    Chord chord;
    const std::string key = event["key"].as<std::string>();
    if (const auto named = Named.find(key); named != Named.end()) {
        chord.key = named->second;
    } else if (key.size() >= 2 && key[0] == 'F' &&
               key.find_first_not_of("0123456789", 1) == std::string::npos) {
        if (const auto f = functionKey(std::stoi(key.substr(1)))) {
            chord.key = *f;
        }
    } else {
        std::size_t at = 0;
        const char32_t c = key.empty() ? 0 : nextCharacter(key, at);
        chord.character = at == key.size() ? c : 0; // a named key that types nothing
    }
    chord.ctrl = event["ctrlKey"].as<bool>() || event["metaKey"].as<bool>();
    chord.alt = event["altKey"].as<bool>();
    chord.shift = event["shiftKey"].as<bool>();
    chord.repeat = event["repeat"].as<bool>();
    chord.focused = event["focused"].as<bool>();
    return chord;
}

} // namespace

/// The one calculator of the page.
class Calculator {
  public:
    explicit Calculator(const std::string& locale)
        : m_regional(locale.empty() ? std::nullopt : std::optional<std::string>(locale)) {}

    void start() { m_menu.start(); }
    void activate() { m_menu.activate(); }
    bool openPage(int page) { return m_menu.openPage(page); }
    void goBack() { m_menu.goBack(); }
    void type(int character) { m_menu.type(static_cast<char32_t>(character)); }
    std::string keyDown(const val& event) {
        return FaceActions[static_cast<int>(m_menu.keyDown(chordOf(event)))];
    }
    std::string keyUp(const val& event) {
        return FaceActions[static_cast<int>(m_menu.keyUp(chordOf(event)))];
    }
    void clickRow(int row) { m_menu.clickRow(row); }
    void pressOperator(int key) {
        if (key >= 0 && key < OperatorCount) {
            m_menu.pressOperator(static_cast<Operator>(key));
        }
    }
    void pressMemory(int key) {
        if (key >= 0 && key <= 2) {
            m_menu.pressMemory(static_cast<MemoryKey>(key));
        }
    }
    void pressDigits() { m_menu.pressDigits(); }
    void clear() { m_menu.clear(); }
    bool paste(const std::string& text) { return m_menu.paste(text); }
    void writeReport(const std::string& text) { m_menu.writeReport(text); }
    void enterReport(const std::string& text) { m_menu.enterReport(text); }
    void answer(int id, bool yes, const val& text) {
        Answer answer{yes, std::nullopt};
        if (text.isString()) {
            answer.text = text.as<std::string>();
        }
        m_menu.answer(id, answer);
    }
    void chooseAircraft(int index) { m_menu.chooseAircraft(index); }
    void chooseShift(int from, int to) { m_menu.chooseShift(from, to); }
    void chooseBallast(int station) { m_menu.chooseBallast(station); }
    void saveLoading() { m_menu.saveLoading(); }
    void recallLoading(int index) { m_menu.recallLoading(index); }
    void deleteLoading(int index) { m_menu.deleteLoading(index); }
    void newProfile() { m_menu.newProfile(); }
    void duplicateProfile() { m_menu.duplicateProfile(); }
    void editProfile() { m_menu.editProfile(); }
    void renameProfile() { m_menu.renameProfile(); }
    void deleteProfile() { m_menu.deleteProfile(); }
    void importProfile(const std::string& text) { m_menu.importProfile(text); }
    std::string exportProfile() const { return m_menu.exportProfile(); }
    void editField(const std::string& field, const std::string& text) {
        m_menu.editField(field, text);
    }
    void pressFormButton(int kind, int group, int item) {
        if (kind >= 0 && kind <= static_cast<int>(balance::FormAction::Kind::Cancel)) {
            m_menu.pressFormButton({static_cast<balance::FormAction::Kind>(kind), group, item});
        }
    }
    val applyChange(int id, const val& stored) { return m_storage.apply(id, stored); }
    void stored(int id, bool ok) { m_storage.stored(id, ok); }

    std::string displayNumber() const { return m_menu.displayNumber(); }
    std::string pageText() const { return m_menu.pageText(); }
    std::string ratesNote() { return m_menu.ratesNote(); }
    val licenceNotes() const {
        val notes = val::array();
        for (const std::string& note : zel::licenceNotes()) {
            notes.call<void>("push", note);
        }
        return notes;
    }
    std::string settingsFile() { return m_menu.settingsFile(); }
    std::string decimalSymbol() const { return m_menu.symbols().decimal; }

    /// Everything the page draws.
    val view() const {
        const View v = m_menu.view();
        val s = val::object();
        s.set("face", std::string(v.face == Face::Page ? "page" : "menu"));
        s.set("page", m_menu.currentPage());
        s.set("title", v.title);
        s.set("icon", v.icon);
        s.set("report", v.report);
        s.set("display", v.display);
        s.set("displayShortForms", strings(v.displayShortForms));
        s.set("displayEmphasis", v.displayEmphasis);
        s.set("hint", v.hint);
        s.set("note", v.note);
        s.set("places", v.places);
        s.set("digits", v.digits);
        s.set("panels", v.panels);
        val memory = val::array();
        for (const KeyView& key : v.memory) {
            memory.call<void>("push", keyObject(key));
        }
        s.set("memory", memory);
        val operators = val::array();
        for (const KeyView& key : v.operators) {
            operators.call<void>("push", keyObject(key));
        }
        s.set("operators", operators);
        val rows = val::array();
        for (const RowView& row : v.rows) {
            rows.call<void>("push", rowObject(row));
        }
        s.set("rows", rows);
        val pages = val::array();
        for (const PageButton& page : v.pages) {
            val p = val::object();
            p.set("number", page.number);
            p.set("name", page.name);
            p.set("icon", page.icon);
            p.set("key", page.key);
            pages.call<void>("push", p);
        }
        s.set("pages", pages);
        val groups = val::array();
        for (const PageGroup& group : v.groups) {
            val g = val::object();
            g.set("heading", group.heading);
            val numbers = val::array();
            for (int number : group.pages) {
                numbers.call<void>("push", number);
            }
            g.set("pages", numbers);
            groups.call<void>("push", g);
        }
        s.set("groups", groups);
        s.set("loading", v.loading ? loadingObject(*v.loading) : val::null());
        val help = val::array();
        for (const HelpLine& line : v.help) {
            val h = val::object();
            h.set("keys", line.keys);
            h.set("does", line.does);
            h.set("needs", std::string(FaceActions[static_cast<int>(line.needs)]));
            help.call<void>("push", h);
        }
        s.set("help", help);
        val requests = val::array();
        for (const Request& request : v.requests) {
            requests.call<void>("push", PageInteraction::requestObject(request));
        }
        s.set("requests", requests);
        s.set("busy", v.busy);
        return s;
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
        .function("start", &Calculator::start)
        .function("activate", &Calculator::activate)
        .function("openPage", &Calculator::openPage)
        .function("goBack", &Calculator::goBack)
        .function("type", &Calculator::type)
        .function("keyDown", &Calculator::keyDown)
        .function("keyUp", &Calculator::keyUp)
        .function("clickRow", &Calculator::clickRow)
        .function("pressOperator", &Calculator::pressOperator)
        .function("pressMemory", &Calculator::pressMemory)
        .function("pressDigits", &Calculator::pressDigits)
        .function("clear", &Calculator::clear)
        .function("paste", &Calculator::paste)
        .function("writeReport", &Calculator::writeReport)
        .function("enterReport", &Calculator::enterReport)
        .function("answer", &Calculator::answer)
        .function("chooseAircraft", &Calculator::chooseAircraft)
        .function("chooseShift", &Calculator::chooseShift)
        .function("chooseBallast", &Calculator::chooseBallast)
        .function("saveLoading", &Calculator::saveLoading)
        .function("recallLoading", &Calculator::recallLoading)
        .function("deleteLoading", &Calculator::deleteLoading)
        .function("newProfile", &Calculator::newProfile)
        .function("duplicateProfile", &Calculator::duplicateProfile)
        .function("editProfile", &Calculator::editProfile)
        .function("renameProfile", &Calculator::renameProfile)
        .function("deleteProfile", &Calculator::deleteProfile)
        .function("importProfile", &Calculator::importProfile)
        .function("exportProfile", &Calculator::exportProfile)
        .function("editField", &Calculator::editField)
        .function("pressFormButton", &Calculator::pressFormButton)
        .function("applyChange", &Calculator::applyChange)
        .function("stored", &Calculator::stored)
        .function("displayNumber", &Calculator::displayNumber)
        .function("pageText", &Calculator::pageText)
        .function("ratesNote", &Calculator::ratesNote)
        .function("licenceNotes", &Calculator::licenceNotes)
        .function("settingsFile", &Calculator::settingsFile)
        .function("decimalSymbol", &Calculator::decimalSymbol)
        .function("view", &Calculator::view);
}
