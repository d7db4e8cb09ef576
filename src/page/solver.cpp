// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "page/solver.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace zel::solver {
namespace {

double apply(double (*f)(double), double v) {
    return f != nullptr ? f(v) : v;
}

} // namespace

double product(int target, const std::array<double, 3>& v) {
    return target == 0 ? v[1] * v[2] : v[0] / v[static_cast<std::size_t>(3 - target)];
}

double productPerSixty(int target, const std::array<double, 3>& v) {
    return product(target, {v[0] * 60, v[1], v[2]}) / (target == 0 ? 60 : 1);
}

void propagate(const Formulas& formulas, Quantities& q) {
    for (bool changed = true; changed;) {
        changed = formulas.derive != nullptr && formulas.derive(q);
        for (const Relation& relation : formulas.relations) {
            std::array<double, 3> values{};
            int missing = -1;
            int unknowns = 0;
            for (int i = 0; i < 3; ++i) {
                const int quantity = relation.quantities[static_cast<std::size_t>(i)];
                const std::optional<double> value =
                    quantity < 0 ? 0.0 : q[static_cast<std::size_t>(quantity)];
                values[static_cast<std::size_t>(i)] = value.value_or(0);
                if (!value) {
                    missing = i;
                    ++unknowns;
                }
            }
            if (unknowns != 1 || (relation.only >= 0 && relation.only != missing)) {
                continue; // a one-way formula gives only its result
            }
            const double v = relation.solve(missing, values);
            if (std::isfinite(v)) {
                q[static_cast<std::size_t>(
                    relation.quantities[static_cast<std::size_t>(missing)])] = v;
                changed = true;
            }
        }
    }
}

Report solve(const PageTable& table, PageSheet& page, double x, int inputRow) {
    const Formulas& model = table.formulas;
    const RowSpec& typed = table.row(inputRow);
    const Range& range = typed.range;
    const bool wrongSign =
        (x < 0 && typed.sign != Sign::Any) || (x == 0 && typed.sign == Sign::Positive);
    if (wrongSign && range.message.empty()) {
        return Report::beep();
    }
    // A row that states its range says so for a wrong sign too (a direction of -5).
    if (wrongSign || range.refuses(x) || !std::isfinite(apply(typed.fromRow, x))) {
        return Report::warning(range.message);
    }

    // The givens, newest first: the typed row, then those typed before it.
    std::vector<int> givens{inputRow};
    for (int row : page.givens()) {
        if (row != inputRow) {
            givens.push_back(row);
        }
    }
    auto valueOf = [&](int row) {
        const RowSpec& link = table.row(row);
        return apply(link.fromRow, row == inputRow ? x : page.value(row));
    };
    Quantities q{};
    std::vector<int> taken;
    for (int row : givens) {
        const RowSpec& link = table.row(row);
        if (link.group != 0) {
            // One given per group: a newer one of the same group was taken.
            bool groupTaken = false;
            for (int t : taken) {
                groupTaken = groupTaken || table.row(t).group == link.group;
            }
            if (groupTaken) {
                continue;
            }
        } else {
            Quantities closure = q;
            propagate(model, closure);
            const bool follows = closure[static_cast<std::size_t>(link.quantity)].has_value();
            if (follows || static_cast<int>(taken.size()) >= model.freedom) {
                continue;
            }
        }
        q[static_cast<std::size_t>(link.quantity)] = valueOf(row);
        taken.push_back(row);
    }
    propagate(model, q);
    for (const Default& d : model.defaults) {
        if (!q[static_cast<std::size_t>(d.quantity)] &&
            (d.unlessKnown < 0 || !q[static_cast<std::size_t>(d.unlessKnown)])) {
            const std::optional<double> value =
                d.sameAs < 0 ? d.value : q[static_cast<std::size_t>(d.sameAs)];
            if (!value) {
                continue;
            }
            q[static_cast<std::size_t>(d.quantity)] = value;
            propagate(model, q);
        }
    }
    if (model.check != nullptr) {
        if (const auto warning = model.check(q)) {
            return Report::warning(*warning);
        }
    }

    // Every row from its quantity; a typed row that counts keeps what was typed.
    for (int row = 1; row <= PageSheet::Rows; ++row) {
        const RowSpec& link = table.row(row);
        if (link.quantity < 0) {
            continue;
        }
        const std::optional<double> v = q[static_cast<std::size_t>(link.quantity)];
        if (row == inputRow) {
            page.setValue(row, x);
        } else if (std::find(taken.begin(), taken.end(), row) != taken.end()) {
            continue; // an older given that still counts keeps what was typed
        } else if (v && std::isfinite(apply(link.toRow, *v))) {
            page.setValue(row, apply(link.toRow, *v));
        } else {
            page.clear(row);
        }
        if (row != inputRow) {
            page.forgetGiven(row); // computed now, whether typed before or not
        }
    }
    page.markGiven(inputRow);
    if (model.advise != nullptr) {
        if (const auto advice = model.advise(q)) {
            return Report::warning(*advice);
        }
    }
    return {};
}

} // namespace zel::solver
