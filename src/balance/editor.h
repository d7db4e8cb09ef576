// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include "balance/profile.h"
#include "entry/numbertext.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zel::balance {

/// One field of the profile editor: a text the user types, or a choice.
struct FormField {
    std::string id;    ///< what Menu::editField names it by: "station.2.arm"
    std::string label; ///< "Arm - in"
    std::string text;
    std::vector<std::string> choices; ///< a choice among these; empty for a text

    bool operator==(const FormField&) const = default;
};

/// What a button of the editor does: to a station (`item`), an envelope
/// (`group`), or a corner of one (`group`, `item`), all counted from 1.
struct FormAction {
    enum class Kind {
        AddStation,
        RemoveStation,
        AddEnvelope,
        RemoveEnvelope,
        AddCorner,
        RemoveCorner,
        AddCombined,
        RemoveCombined,
        AddCondition,
        RemoveCondition,
        Save,
        Cancel
    };
    Kind kind = Kind::Save;
    int group = 0;
    int item = 0;

    bool operator==(const FormAction&) const = default;
};

struct FormButton {
    std::string caption; ///< "Add station", "Remove"
    FormAction action;

    bool operator==(const FormButton&) const = default;
};

struct FormRow {
    std::vector<FormField> fields;
    std::optional<FormButton> remove;

    bool operator==(const FormRow&) const = default;
};

/// A part of the form: the aircraft's figures, its stations (a table), its
/// combined limits (a table), one envelope (its name, then a table of its
/// corners), or the conditions of one envelope's category (a table).
struct FormSection {
    std::string title;
    std::vector<FormField> fields;    ///< each drawn as its label and its field
    std::vector<std::string> columns; ///< the table's headings
    std::vector<FormRow> rows;        ///< the table's rows, each field under its heading
    std::vector<FormButton> buttons;

    bool operator==(const FormSection&) const = default;
};

/// The editor as every face draws it.
struct ProfileForm {
    std::string title; ///< "Edit Cessna 172S", "New profile"
    std::vector<FormSection> sections;
    std::vector<FormButton> buttons; ///< Save, Cancel

    bool operator==(const ProfileForm&) const = default;
};

/// A profile being edited: every field kept as the user typed it, so that
/// nothing typed is lost while it is not yet a profile. Saving reads it as
/// a profile file is read, with the same refusals.
class ProfileEditor {
  public:
    /// Edits `aircraft` (its figures written with `symbols`); `replacing` is
    /// the kept profile it replaces when saved, nothing for a new one.
    ProfileEditor(const Aircraft& aircraft, std::optional<std::string> replacing,
                  const Symbols& symbols);

    const std::optional<std::string>& replacing() const { return m_replacing; }
    /// A field typed into. A unit chosen converts every figure of its kind.
    void edit(std::string_view field, std::string_view text);
    /// Adds or removes a station, an envelope or a corner (not Save or Cancel).
    void apply(const FormAction& action);
    /// The profile the fields make, or why they make none ("station 2 (Fuel):
    /// its arm \"x\" is not a number", "envelope 1 (Normal): its edges cross").
    ProfileRead profile(const Symbols& symbols) const;
    ProfileForm form() const;

  private:
    struct StationFields {
        std::string name, arm, max, usable, density, unusable, taxi;
    };
    struct CornerFields {
        std::string weight, arm;
    };
    /// A condition: the station's name and the most it may hold.
    struct ConditionFields {
        std::string station, max;
    };
    struct EnvelopeFields {
        std::string name;
        std::vector<CornerFields> corners;
        std::vector<ConditionFields> conditions;
    };
    /// A combined limit: its stations' names joined by "+", and their max.
    struct CombinedFields {
        std::string stations, max;
    };
    std::string* field(std::string_view id);
    /// A unit chosen anew, with every figure of its kind converted to it.
    void changeUnit(std::string_view id, std::string_view text);

    std::optional<std::string> m_replacing;
    Symbols m_symbols; ///< the regional symbols its figures are written with
    std::string m_name, m_source, m_weightUnit, m_armUnit, m_fuelUnit;
    std::string m_emptyWeight, m_emptyArm, m_divisor, m_macEdge, m_macLength;
    std::string m_maxRamp, m_maxTakeoff, m_maxLanding, m_maxZeroFuel;
    std::vector<StationFields> m_stations;
    std::vector<CombinedFields> m_combined;
    std::vector<EnvelopeFields> m_envelopes;
};

} // namespace zel::balance
