// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include "entry/numbertext.h"

#include <chrono>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace zel {

enum class MessageIcon { Information, Exclamation, Critical, Question };

/// "information", "exclamation", "critical", "question": the icon as a face names it.
constexpr std::string_view messageIconName(MessageIcon icon) {
    switch (icon) {
    case MessageIcon::Exclamation:
        return "exclamation";
    case MessageIcon::Critical:
        return "critical";
    case MessageIcon::Question:
        return "question";
    case MessageIcon::Information:
        break;
    }
    return "information";
}

/// A box the calculator opens over the window: a message to read, a Yes/No
/// question, or an input box. Its text is a list of paragraphs; each face
/// sets them apart in its own way.
struct Request {
    enum class Kind { Message, Question, Input };
    int id = 0; ///< what the answer names it by
    Kind kind = Kind::Message;
    MessageIcon icon = MessageIcon::Information;
    std::string title;
    std::vector<std::string> paragraphs;
};

/// The user's answer: Yes or No to a question; the text typed into an input
/// box, or nothing when it was cancelled. A message is answered by closing it.
struct Answer {
    bool yes = false;
    std::optional<std::string> text;
};

/// Nobody waits for a request: the asker hands over what to do with the answer
/// and returns. Whoever answers calls it later, from its own event loop, and at
/// most once; a fake may call it at once, as every request is the last step of
/// what makes it.
template <typename Reply> using Then = std::function<void(Reply)>;

/// What a face shows outside the window's own controls: the boxes the
/// calculator opens, the bell, the busy pointer, the end.
class Interaction {
  public:
    virtual ~Interaction() = default;
    virtual void beep() = 0;
    /// Shows a box: boxes are shown one after another, in the order they were
    /// opened. The user's answer goes back to the calculator with the
    /// request's id (a message's too, when it is closed).
    virtual void open(const Request& request) = 0;
    virtual void setBusy(bool busy) = 0;
    /// The program ends at once.
    virtual void quit() = 0;
};

/// The boxes a flow of the calculator opens (the Currency page's questions and
/// input boxes, a download's messages). The answer comes back later.
class Dialogs {
  public:
    virtual ~Dialogs() = default;
    virtual void message(MessageIcon icon, std::string_view title,
                         std::vector<std::string> paragraphs) = 0;
    /// A question or an input box; `then` takes the answer.
    virtual void ask(Request request, Then<const Answer&> then) = 0;
};

/// The machine's regional number symbols, read afresh at each call.
class Regional {
  public:
    virtual ~Regional() = default;
    virtual Symbols symbols() = 0;
    /// How a user of this platform sets the number symbols, a sentence:
    /// in the desktop's region settings, or by the browser's language.
    virtual std::string howToChange() = 0;
};

/// The symbols of a named locale ("en_US", "de_DE") or of the machine's own,
/// or two given characters that replace them; each platform reads a locale
/// its own way.
class LocaleRegional : public Regional {
  public:
    explicit LocaleRegional(std::optional<std::string> localeName = std::nullopt,
                            std::optional<Symbols> replacement = std::nullopt)
        : m_localeName(std::move(localeName)), m_replacement(std::move(replacement)) {}

    Symbols symbols() final { return m_replacement ? *m_replacement : localeSymbols(m_localeName); }

  protected:
    /// The symbols of the named locale, or of the machine's own for none.
    virtual Symbols localeSymbols(const std::optional<std::string>& name) = 0;

  private:
    std::optional<std::string> m_localeName;
    std::optional<Symbols> m_replacement;
};

/// A file as read: its bytes, or why there are none. A file that exists but
/// cannot be read is not a missing one: nothing may be written over it.
struct FileRead {
    enum class Status { Ok, Missing, Unreadable } status = Status::Missing;
    std::string bytes;
};

/// Where below the program folder the settings file is kept; the downloaded
/// rate pages are kept beside it.
inline constexpr std::string_view TechFolder = "Tech";
inline constexpr std::string_view SettingsName = "zelFLIGHTAB.ini";

/// A file kept in the Tech folder below the program folder: the folder without
/// its trailing separator ("/" or "\"; a blank folder is none), "/Tech/", the name.
inline std::string techPath(std::string_view programFolder, std::string_view name) {
    if (programFolder.find_first_not_of(" \t") == std::string_view::npos) {
        programFolder = {};
    } else if (programFolder.back() == '/' || programFolder.back() == '\\') {
        programFolder.remove_suffix(1);
    }
    return std::string(programFolder) + "/" + std::string(TechFolder) + "/" + std::string(name);
}
/// The settings file: <program folder>/Tech/zelFLIGHTAB.ini.
inline std::string settingsPath(std::string_view programFolder) {
    return techPath(programFolder, SettingsName);
}

/// The program folder and the files below it: the settings file, the kept
/// pages. A write is a request: its outcome comes back later (a browser's
/// storage answers asynchronously), and it is whole or nothing.
class Storage {
  public:
    virtual ~Storage() = default;
    /// The folder whose Tech subfolder holds the settings file.
    virtual std::string programFolder() = 0;
    virtual FileRead read(const std::string& path) = 0;
    /// Replaces the file as a whole or not at all (a temporary file, then a
    /// rename), so that a crash or a full disk never leaves half a file.
    /// `done` learns whether it was written.
    virtual void write(const std::string& path, std::string_view bytes, Then<bool> done) = 0;
    /// Deletes the file if it is there.
    virtual void remove(const std::string& path) = 0;
    /// The names of the files in a folder (not its subfolders), in name
    /// order; none when there is no such folder.
    virtual std::vector<std::string> list(const std::string& folder) = 0;
    /// What a change makes of a file as it stands: its new bytes, or nothing
    /// to leave it alone.
    using Change = std::function<std::optional<std::string>(const FileRead& file)>;
    /// Changes a file while holding a lock that every instance of the program
    /// respects: reads it afresh, hands it to `change` and replaces it whole
    /// with the result, so that two windows writing at once never lose each
    /// other's changes. `change` may be called again after update returned
    /// (a browser waits for its lock asynchronously), so it owns what it uses.
    /// `done` learns whether the change was stored: false when the lock could
    /// not be had within 5 seconds (a lock left by a program that crashed is
    /// taken over), when `change` left the file alone, or when it could not be
    /// written; the file is then as it was.
    virtual void update(const std::string& path, const Change& change, Then<bool> done) = 0;
};

/// The outcome of one HTTP transfer.
struct HttpReply {
    bool ok = false;
    int error = 0;         ///< the transfer's error number when it failed
    std::string errorText; ///< and its description
    std::string body;      ///< never empty when ok
};

class Network {
  public:
    virtual ~Network() = default;
    /// Whether the machine can reach the Internet (true when nobody can tell).
    virtual bool connected() = 0;
    /// Starts a GET; `then` takes the outcome when the transfer ends. An empty
    /// body, a transfer over its size or time limit and an HTTP error status
    /// are failed transfers.
    virtual void get(const std::string& url, Then<HttpReply> then) = 0;
};

class Clock {
  public:
    virtual ~Clock() = default;
    /// Today's local date.
    virtual std::chrono::year_month_day today() = 0;
};

/// Everything the platform does for the calculator, piece by piece, so that a
/// front end or a test can replace any one piece.
struct Platform {
    Interaction& ui;
    Regional& regional;
    Storage& storage;
    Network& network;
    Clock& clock;
};

} // namespace zel
