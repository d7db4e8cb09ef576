// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include "balance/editor.h"
#include "balance/loadingbook.h"
#include "balance/loadingview.h"
#include "balance/shelf.h"
#include "page/pagetable.h"

#include <chrono>
#include <map>
#include <memory>
#include <optional>
#include <string>

namespace zel::balance {

/// The page's title, which its boxes carry.
inline constexpr std::string_view WeightBalanceTitle = "Weight & Balance";

/// The Weight & Balance page: the aircraft chosen, what is loaded in each,
/// the helpers, and the profiles with their editor. A number typed into the
/// calculator goes into a cell of the sheet as into a row: each cell the user
/// gives (the empty weight and arm, a station's weight, fuel as a quantity
/// or a weight, a burn, the target CG) is an entry, numbered in the order
/// the sheet shows them.
class WeightBalance {
  public:
    WeightBalance(Storage& storage, Dialogs& dialogs)
        : m_storage(storage), m_shelf(storage), m_dialogs(dialogs) {}

    /// The page is opened: the profiles and the kept loadings are read the
    /// first time, and any kept file that is no profile is pointed out.
    void open();

    int entryCount() const;
    /// Puts a typed value into an entry; what the user must be told when it
    /// cannot be (a negative weight, a burn greater than the fuel on board).
    Report enter(int entry, double value, const Symbols& symbols);
    /// The value an entry holds; nothing when it holds none.
    std::optional<double> value(int entry) const;
    /// Marks the entry as the one the calculator shows.
    void select(int entry) { m_input = entry; }
    /// The loading of the aircraft shown is emptied.
    void clear();

    void chooseAircraft(int index);
    /// Asks a name and keeps the loading shown under it ("Solo, full fuel").
    void saveLoading();
    /// The loading saved under the `index`th name of the aircraft shown
    /// (counted from 0, in the order the view lists them) becomes its loading.
    void recallLoading(int index);
    void deleteLoading(int index);
    void chooseShift(int from, int to);
    void chooseBallast(int station);

    void newProfile(const Symbols& symbols);
    void duplicateProfile();
    void editProfile(const Symbols& symbols);
    void renameProfile();
    void deleteProfile();
    void importProfile(std::string_view bytes);
    /// The aircraft shown as a profile file: JSON, with its empty weight.
    std::string exportProfile() const;
    bool editing() const { return m_editor != nullptr; }
    void editField(std::string_view field, std::string_view text);
    void pressFormButton(const FormAction& action, const Symbols& symbols);

    LoadingView view(const Symbols& symbols, std::chrono::year_month_day today) const;

  private:
    enum class EntryKind {
        EmptyWeight,
        EmptyArm,
        Weight,
        FuelVolume,
        BurnVolume,
        BurnWeight,
        Target
    };
    struct Entry {
        EntryKind kind;
        std::size_t station = 0;
    };
    std::vector<Entry> entries() const;
    const ProfileShelf::Profile* shown() const;
    Loading& loading();
    const Loading* loadingOf(const Aircraft& aircraft) const;
    /// Keeps the aircraft as the user's own and shows it; says so when it
    /// cannot be written.
    void keep(const Aircraft& aircraft, std::optional<std::string> replacing);
    void message(std::string text);
    /// The named loadings of the aircraft shown, as indexes into m_named.
    std::vector<std::size_t> namedOfShown() const;
    /// Writes the book: the aircraft shown, every loading, the named ones.
    /// A write that fails is told once, until one succeeds again.
    void keepLoadings();

    Storage& m_storage;
    ProfileShelf m_shelf;
    Dialogs& m_dialogs;
    bool m_loaded = false;
    std::string m_chosen;                      ///< the name of the aircraft shown
    std::map<std::string, Loading> m_loadings; ///< by aircraft name, in lower case
    /// Loadings read from the book for aircraft whose profile is not read yet
    /// or no longer offered: kept as they were, by aircraft name in lower case.
    std::map<std::string, KeptLoading> m_unplaced;
    std::vector<KeptLoading> m_named;
    bool m_bookFailed = false;
    /// An empty weight or arm typed while the other is still missing.
    std::optional<double> m_pendingWeight;
    std::optional<double> m_pendingArm;
    std::optional<double> m_target;
    int m_shiftFrom = 0;
    int m_shiftTo = 0;
    int m_ballastAt = 0;
    int m_input = 0;
    std::unique_ptr<ProfileEditor> m_editor;
};

} // namespace zel::balance
