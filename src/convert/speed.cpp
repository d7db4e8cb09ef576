// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "convert/convert.h"

#include <array>
#include <cmath>
#include <string_view>

namespace zel {
namespace {

constexpr int ForceRow = 7;
constexpr int DescriptionRow = 8;

/// The speed a force stands for when one is typed: the top of its band in
/// km/h. Force 12 gives 133 km/h, above the 118 where the band starts: a
/// hurricane has no top, and 133 is the figure the speed tables give for it.
constexpr std::array<double, 12> ForceSpeed{5, 11, 19, 28, 38, 49, 61, 74, 88, 102, 117, 133};

/// The Beaufort bands by their highest whole km/h; 118 and above is force 12.
struct Band {
    double upTo;
    std::string_view force;
    std::string_view description;
};
constexpr std::array<Band, 12> Bands{{{1, "0", "calm"},
                                      {5, "1", "light air"},
                                      {11, "2", "light breeze"},
                                      {19, "3", "gentle breeze"},
                                      {28, "4", "moderate breeze"},
                                      {38, "5", "fresh breeze"},
                                      {49, "6", "strong breeze"},
                                      {61, "7", "high wind"},
                                      {74, "8", "fresh gale"},
                                      {88, "9", "strong gale"},
                                      {102, "10", "storm"},
                                      {117, "11", "violent storm"}}};

} // namespace

Report convertSpeed(PageSheet& page, double x, int& inputRow) {
    if (inputRow == ForceRow && !(x >= 1 && x <= 12)) {
        return Report::warning("Invalid input (range 1 to 12)");
    }
    if (inputRow == DescriptionRow || x < 0) { // a force was checked above
        return Report::beep();
    }
    if (inputRow == ForceRow) {
        // A fractional force takes its whole part: 4.5 is force 4.
        const auto force = static_cast<std::size_t>(std::trunc(x));
        page.setValue(1, ForceSpeed[force - 1]);
        inputRow = 1;
    } else {
        page.setValue(inputRow, x);
    }
    for (int row = 1; row <= 6; ++row) {
        const double v = page.value(inputRow);
        page.setValue(row, v / multiplier(page.factor(inputRow)) * multiplier(page.factor(row)));
    }
    const double k = std::floor(page.value(1) + 0.5);
    if (k < 0 || page.failed()) {
        return {};
    }
    std::string_view force = "12";
    std::string_view description = "hurricane";
    for (const Band& band : Bands) {
        if (k <= band.upTo) {
            force = band.force;
            description = band.description;
            break;
        }
    }
    page.setText(ForceRow, std::string(force));
    page.setText(DescriptionRow, std::string(description));
    return {};
}

} // namespace zel
