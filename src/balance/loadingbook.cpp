// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "balance/loadingbook.h"

#include "balance/quantity.h"

#include <nlohmann/json.hpp>

#include <cmath>

namespace zel::balance {
namespace {

using Json = nlohmann::ordered_json;

constexpr std::string_view Format = "zelflightab-loadings/1";

Json figures(const std::map<std::string, double>& by) {
    Json out = Json::object();
    for (const auto& [station, weight] : by) {
        out[station] = weight;
    }
    return out;
}

std::map<std::string, double> figuresOf(const Json& object) {
    std::map<std::string, double> by;
    if (!object.is_object()) {
        return by;
    }
    for (const auto& [station, weight] : object.items()) {
        if (weight.is_number() && std::isfinite(weight.get<double>()) &&
            weight.get<double>() >= 0 && weight.get<double>() <= MaxFigure) {
            by[station] = weight.get<double>();
        }
    }
    return by;
}

Json loadingJson(const KeptLoading& kept) {
    Json out = Json::object();
    if (!kept.name.empty()) {
        out["name"] = kept.name;
    }
    out["aircraft"] = kept.aircraft;
    out["weights"] = figures(kept.weights);
    out["burns"] = figures(kept.burns);
    return out;
}

std::vector<KeptLoading> loadingsOf(const Json& root, std::string_view key, bool named) {
    std::vector<KeptLoading> list;
    const auto it = root.find(key);
    if (it == root.end() || !it->is_array()) {
        return list;
    }
    for (const Json& entry : *it) {
        if (!entry.is_object() || !entry.contains("aircraft") || !entry["aircraft"].is_string()) {
            continue;
        }
        KeptLoading kept;
        kept.aircraft = entry["aircraft"].get<std::string>();
        if (named) {
            if (!entry.contains("name") || !entry["name"].is_string()) {
                continue;
            }
            kept.name = entry["name"].get<std::string>();
        }
        if (entry.contains("weights")) {
            kept.weights = figuresOf(entry["weights"]);
        }
        if (entry.contains("burns")) {
            kept.burns = figuresOf(entry["burns"]);
        }
        list.push_back(std::move(kept));
    }
    return list;
}

} // namespace

std::string writeBook(const LoadingBook& book) {
    Json root = Json::object();
    root["format"] = Format;
    root["chosen"] = book.chosen;
    root["current"] = Json::array();
    for (const KeptLoading& kept : book.current) {
        root["current"].push_back(loadingJson(kept));
    }
    root["named"] = Json::array();
    for (const KeptLoading& kept : book.named) {
        root["named"].push_back(loadingJson(kept));
    }
    return root.dump(2) + "\n";
}

LoadingBook readBook(std::string_view json) {
    LoadingBook book;
    const Json root = Json::parse(json, nullptr, false);
    if (root.is_discarded() || !root.is_object() || !root.contains("format") ||
        !root["format"].is_string() || root["format"].get<std::string>() != Format) {
        return book;
    }
    if (root.contains("chosen") && root["chosen"].is_string()) {
        book.chosen = root["chosen"].get<std::string>();
    }
    book.current = loadingsOf(root, "current", false);
    book.named = loadingsOf(root, "named", true);
    return book;
}

KeptLoading keptLoading(const Aircraft& aircraft, const Loading& loading, std::string name) {
    KeptLoading kept;
    kept.name = std::move(name);
    kept.aircraft = aircraft.name;
    for (std::size_t i = 0; i < aircraft.stations.size(); ++i) {
        if (i < loading.weights.size() && loading.weights[i]) {
            kept.weights[aircraft.stations[i].name] = *loading.weights[i];
        }
        if (i < loading.burns.size() && loading.burns[i]) {
            kept.burns[aircraft.stations[i].name] = *loading.burns[i];
        }
    }
    return kept;
}

Loading loadingFrom(const Aircraft& aircraft, const KeptLoading& kept) {
    Loading loading = Loading::emptyFor(aircraft);
    for (const auto& [names, into] :
         {std::pair{&kept.weights, &loading.weights}, std::pair{&kept.burns, &loading.burns}}) {
        for (const auto& [station, weight] : *names) {
            if (const Station* s = stationNamed(aircraft, station)) {
                (*into)[static_cast<std::size_t>(s - aircraft.stations.data())] = weight;
            }
        }
    }
    return loading;
}

} // namespace zel::balance
