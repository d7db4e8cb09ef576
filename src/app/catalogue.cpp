// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "app/catalogue.h"

#include <array>

namespace zel {

// Each page is declared beside its converter or formulas.
extern const PageTable WeightPage, FluidPage, SurfacePage, SpeedPage, DistancePage, AnglePage,
    TemperaturePage, PressurePage, PowerPage, FuelUpliftPage, EndurancePage, FuelRangePage,
    MachAsPage, SnowtamPage, TrackTimePage, WindPage, WindCompPage, CurrencyPage, AltitudePage,
    DescentPage, TurnPage, FuelPlanPage, CloudBasePage, RwyConditionPage, TrueAltitudePage,
    HoldingPage, SunPage, WeightBalancePage, VariationPage, GreatCirclePage;

const PageCatalogue& pageCatalogue() {
    // The menu's order, which numbers the pages: scripts and the function
    // keys know them by these numbers, so a new page goes at the end.
    static constexpr std::array Pages{
        &WeightPage,    &FluidPage,       &SurfacePage,       &SpeedPage,        &DistancePage,
        &AnglePage,     &TemperaturePage, &PressurePage,      &PowerPage,        &FuelUpliftPage,
        &EndurancePage, &FuelRangePage,   &MachAsPage,        &SnowtamPage,      &TrackTimePage,
        &WindPage,      &WindCompPage,    &CurrencyPage,      &AltitudePage,     &DescentPage,
        &TurnPage,      &FuelPlanPage,    &CloudBasePage,     &RwyConditionPage, &TrueAltitudePage,
        &HoldingPage,   &SunPage,         &WeightBalancePage, &VariationPage,    &GreatCirclePage};
    // The menu's groups, in the order a pilot works: units, flight planning,
    // in flight, reports.
    static const PageCatalogue catalogue{
        Pages,
        {{"Units",
          {&WeightPage, &FluidPage, &SurfacePage, &SpeedPage, &DistancePage, &AnglePage,
           &TemperaturePage, &PressurePage, &PowerPage, &CurrencyPage}},
         {"Flight planning",
          {&FuelUpliftPage, &EndurancePage, &FuelRangePage, &FuelPlanPage, &WeightBalancePage,
           &TrackTimePage, &GreatCirclePage, &VariationPage, &AltitudePage, &TrueAltitudePage,
           &CloudBasePage, &SunPage}},
         {"In flight",
          {&MachAsPage, &WindPage, &WindCompPage, &DescentPage, &TurnPage, &HoldingPage}},
         {"Reports", {&SnowtamPage, &RwyConditionPage}}}};
    return catalogue;
}

} // namespace zel
