// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "balance/envelope.h"

#include <algorithm>
#include <cmath>

namespace zel::balance {
namespace {

/// A point measured in the polygon's spans: x the arm, y the weight.
struct Point {
    double x;
    double y;
};

/// What counts as nothing in a polygon measured in its own spans.
constexpr double Tolerance = 1e-9;

/// Measures points in the spans of a polygon, so that one tolerance serves
/// every unit and size.
class Scale {
  public:
    explicit Scale(std::span<const Mass> corners) {
        if (corners.empty()) {
            return;
        }
        auto [lowW, highW] = std::minmax_element(
            corners.begin(), corners.end(), [](Mass a, Mass b) { return a.weight < b.weight; });
        auto [lowA, highA] = std::minmax_element(corners.begin(), corners.end(),
                                                 [](Mass a, Mass b) { return a.arm < b.arm; });
        m_weight = lowW->weight;
        m_arm = lowA->arm;
        m_weightSpan = highW->weight - lowW->weight;
        m_armSpan = highA->arm - lowA->arm;
        if (m_weightSpan <= 0) {
            m_weightSpan = std::max(std::fabs(m_weight), 1.0);
        }
        if (m_armSpan <= 0) {
            m_armSpan = std::max(std::fabs(m_arm), 1.0);
        }
    }
    Point operator()(Mass m) const {
        return {(m.arm - m_arm) / m_armSpan, (m.weight - m_weight) / m_weightSpan};
    }
    double weight(double y) const { return m_weight + y * m_weightSpan; }
    double arm(double x) const { return m_arm + x * m_armSpan; }
    double y(double weight) const { return (weight - m_weight) / m_weightSpan; }

  private:
    double m_weight = 0;
    double m_arm = 0;
    double m_weightSpan = 1;
    double m_armSpan = 1;
};

std::vector<Point> scaled(std::span<const Mass> corners, const Scale& scale) {
    std::vector<Point> points;
    points.reserve(corners.size());
    for (Mass m : corners) {
        points.push_back(scale(m));
    }
    return points;
}

double cross(Point o, Point a, Point b) {
    return (a.x - o.x) * (b.y - o.y) - (a.y - o.y) * (b.x - o.x);
}

/// -1, 0 or 1: which side of the line o-a the point b lies on; 0 on it.
int side(Point o, Point a, Point b) {
    const double length = std::hypot(a.x - o.x, a.y - o.y);
    const double c = cross(o, a, b);
    if (std::fabs(c) <= Tolerance * std::max(length, Tolerance)) {
        return 0;
    }
    return c > 0 ? 1 : -1;
}

/// Whether b lies within the box of the segment o-a, with the tolerance.
bool within(Point o, Point a, Point b) {
    return b.x >= std::min(o.x, a.x) - Tolerance && b.x <= std::max(o.x, a.x) + Tolerance &&
           b.y >= std::min(o.y, a.y) - Tolerance && b.y <= std::max(o.y, a.y) + Tolerance;
}

bool onSegment(Point a, Point b, Point p) {
    return side(a, b, p) == 0 && within(a, b, p);
}

bool segmentsMeet(Point a, Point b, Point c, Point d) {
    const int d1 = side(c, d, a);
    const int d2 = side(c, d, b);
    const int d3 = side(a, b, c);
    const int d4 = side(a, b, d);
    if (d1 * d2 < 0 && d3 * d4 < 0) {
        return true;
    }
    return (d1 == 0 && within(c, d, a)) || (d2 == 0 && within(c, d, b)) ||
           (d3 == 0 && within(a, b, c)) || (d4 == 0 && within(a, b, d));
}

bool containsScaled(const std::vector<Point>& polygon, Point p) {
    bool inside = false;
    const std::size_t n = polygon.size();
    for (std::size_t i = 0, j = n - 1; i < n; j = i++) {
        const Point a = polygon[j];
        const Point b = polygon[i];
        if (onSegment(a, b, p)) {
            return true;
        }
        if ((a.y > p.y) != (b.y > p.y)) {
            const double x = a.x + (p.y - a.y) * (b.x - a.x) / (b.y - a.y);
            if (p.x < x) {
                inside = !inside;
            }
        }
    }
    return inside;
}

} // namespace

bool contains(std::span<const Mass> corners, Mass point) {
    if (corners.size() < 3 || !std::isfinite(point.weight) || !std::isfinite(point.arm)) {
        return false;
    }
    const Scale scale(corners);
    return containsScaled(scaled(corners, scale), scale(point));
}

std::optional<std::string_view> shapeFault(std::span<const Mass> corners) {
    const Scale scale(corners);
    const std::vector<Point> p = scaled(corners, scale);
    const std::size_t n = p.size();
    for (std::size_t i = 0; i < n; ++i) {
        const Point a = p[i];
        const Point b = p[(i + 1) % n];
        if (std::hypot(b.x - a.x, b.y - a.y) <= Tolerance) {
            return "two corners in a row are the same";
        }
    }
    for (std::size_t i = 0; i < n; ++i) {
        const Point a = p[i];
        const Point b = p[(i + 1) % n];
        for (std::size_t j = i + 1; j < n; ++j) {
            const Point c = p[j];
            const Point d = p[(j + 1) % n];
            const bool next = j == i + 1;
            const bool last = i == 0 && j == n - 1;
            if (next || last) {
                // Neighbours share a corner; they cross only when one runs
                // back along the other.
                const Point shared = next ? b : a;
                const Point one = next ? a : b;
                const Point other = next ? d : c;
                const double dot = (one.x - shared.x) * (other.x - shared.x) +
                                   (one.y - shared.y) * (other.y - shared.y);
                if (side(one, shared, other) == 0 && dot > 0) {
                    return "its edges cross";
                }
                continue;
            }
            if (segmentsMeet(a, b, c, d)) {
                return "its edges cross";
            }
        }
    }
    double area = 0;
    for (std::size_t i = 0; i < n; ++i) {
        area += cross({0, 0}, p[i], p[(i + 1) % n]);
    }
    if (std::fabs(area) <= Tolerance) {
        return "its corners enclose no area";
    }
    return std::nullopt;
}

std::vector<std::pair<double, double>> cgRanges(std::span<const Mass> corners, double weight) {
    std::vector<std::pair<double, double>> ranges;
    if (corners.size() < 3 || !std::isfinite(weight)) {
        return ranges;
    }
    const Scale scale(corners);
    const std::vector<Point> p = scaled(corners, scale);
    const double y = scale.y(weight);
    const std::size_t n = p.size();
    // Where the level of the weight crosses the edges: each edge counts its
    // lower end and not its upper, so that a corner on the level is counted
    // once where the edges pass through it and twice where they turn.
    std::vector<double> crossings;
    for (std::size_t i = 0; i < n; ++i) {
        const Point a = p[i];
        const Point b = p[(i + 1) % n];
        const Point low = a.y <= b.y ? a : b;
        const Point high = a.y <= b.y ? b : a;
        if (y >= low.y && y < high.y) {
            crossings.push_back(low.x + (y - low.y) * (high.x - low.x) / (high.y - low.y));
        }
    }
    std::sort(crossings.begin(), crossings.end());
    std::vector<std::pair<double, double>> spans;
    for (std::size_t i = 0; i + 1 < crossings.size(); i += 2) {
        spans.emplace_back(crossings[i], crossings[i + 1]);
    }
    // The edges and corners that lie on the level are inside too.
    for (std::size_t i = 0; i < n; ++i) {
        const Point a = p[i];
        const Point b = p[(i + 1) % n];
        if (std::fabs(a.y - y) <= Tolerance && std::fabs(b.y - y) <= Tolerance) {
            spans.emplace_back(std::min(a.x, b.x), std::max(a.x, b.x));
        } else if (std::fabs(a.y - y) <= Tolerance) {
            spans.emplace_back(a.x, a.x);
        }
    }
    std::sort(spans.begin(), spans.end());
    for (auto [from, to] : spans) {
        if (!ranges.empty() && scale.arm(from) <= ranges.back().second + Tolerance) {
            ranges.back().second = std::max(ranges.back().second, scale.arm(to));
        } else {
            ranges.emplace_back(scale.arm(from), scale.arm(to));
        }
    }
    return ranges;
}

Mass Path::at(double t) const {
    const double w = weight + t * dWeight;
    return {w, (moment + t * dMoment) / w};
}

bool pathInside(std::span<const Mass> corners, const Path& path, double* leaves) {
    if (corners.size() < 3) {
        if (leaves != nullptr) {
            *leaves = path.weight;
        }
        return false;
    }
    // Where the path meets an edge's line: with the CG as moment over weight,
    // the condition times the weight is a quadratic in the path's parameter,
    // fitted through three of its values.
    std::vector<double> ts{0, 1};
    const std::size_t n = corners.size();
    for (std::size_t i = 0; i < n; ++i) {
        const Mass a = corners[i];
        const Mass b = corners[(i + 1) % n];
        auto g = [&](double t) {
            const double w = path.weight + t * path.dWeight;
            const double m = path.moment + t * path.dMoment;
            return (w - a.weight) * (b.arm - a.arm) * w - (m - a.arm * w) * (b.weight - a.weight);
        };
        const double g0 = g(0);
        const double gh = g(0.5);
        const double g1 = g(1);
        const double qa = 2 * g1 - 4 * gh + 2 * g0;
        const double qb = 4 * gh - g1 - 3 * g0;
        const double qc = g0;
        auto keep = [&](double t) {
            if (t > 0 && t < 1 && std::isfinite(t)) {
                ts.push_back(t);
            }
        };
        const double scale = std::max({std::fabs(qa), std::fabs(qb), std::fabs(qc)});
        if (scale == 0) {
            continue;
        }
        if (std::fabs(qa) <= 1e-12 * scale) {
            if (qb != 0) {
                keep(-qc / qb);
            }
        } else {
            const double disc = qb * qb - 4 * qa * qc;
            if (disc >= 0) {
                const double root = std::sqrt(disc);
                keep((-qb - root) / (2 * qa));
                keep((-qb + root) / (2 * qa));
            }
        }
    }
    std::sort(ts.begin(), ts.end());
    // Between two meetings the path is wholly inside or wholly outside: one
    // point of each piece tells which.
    const Scale scale(corners);
    const std::vector<Point> p = scaled(corners, scale);
    auto inside = [&](double t) { return containsScaled(p, scale(path.at(t))); };
    for (std::size_t i = 0; i < ts.size(); ++i) {
        bool out = !inside(ts[i]);
        double where = ts[i];
        if (!out && i + 1 < ts.size() && !inside((ts[i] + ts[i + 1]) / 2)) {
            out = true;
        }
        if (out) {
            if (leaves != nullptr) {
                *leaves = path.at(where).weight;
            }
            return false;
        }
    }
    return true;
}

} // namespace zel::balance
