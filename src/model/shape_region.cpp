#include "model/shape_region.h"

#include <algorithm>
#include <cmath>

namespace qor {
namespace {

// A non-horizontal edge, top end first, with the rows whose pixel centres
// it crosses and the direction it ran in (+1 downwards).
struct Edge {
    double x0, y0, slope;
    int firstRow, lastRow;
    int winding;
    double x = 0;   // where it crosses the current row's centre
};

struct Crossing {
    double x;
    int winding;
};

// The first row whose centre (row + 0.5) is at or below y.
int rowAtOrBelow(double y) { return int(std::ceil(y - 0.5)); }

std::vector<std::vector<Edge>> edgesByFirstRow(std::span<const PixelPoint> outline, int height)
{
    std::vector<std::vector<Edge>> rows(std::size_t(std::max(height, 0)));
    const std::size_t n = outline.size();
    for (std::size_t i = 0; i < n; ++i) {
        PixelPoint a = outline[i];
        PixelPoint b = outline[(i + 1) % n];
        if (a.y == b.y)
            continue;
        const int winding = a.y < b.y ? 1 : -1;
        if (a.y > b.y)
            std::swap(a, b);
        Edge e{double(a.x), double(a.y), (double(b.x) - double(a.x)) / (double(b.y) - double(a.y)),
               rowAtOrBelow(a.y), rowAtOrBelow(b.y) - 1, winding, 0};
        e.firstRow = std::max(e.firstRow, 0);
        e.lastRow = std::min(e.lastRow, height - 1);
        if (e.firstRow <= e.lastRow)
            rows[std::size_t(e.firstRow)].push_back(e);
    }
    return rows;
}

// The active edges sorted by their crossing. From one row to the next they
// keep nearly the same order, so an insertion sort costs about one pass.
// Many edges starting together, or a row where many cross one another (a
// hostile outline), are sorted outright, so no row costs more than that.
void keepSortedByX(std::vector<Edge>& active, std::size_t fresh)
{
    constexpr std::size_t kManyFresh = 32;
    auto byX = [](const Edge& a, const Edge& b) { return a.x < b.x; };
    std::size_t budget = fresh > kManyFresh ? 0 : 4 * active.size() + 64;
    for (std::size_t i = 1; i < active.size() && budget > 0; ++i)
        for (std::size_t j = i; j > 0 && active[j].x < active[j - 1].x && budget > 0; --j, --budget)
            std::swap(active[j], active[j - 1]);
    if (budget == 0)
        std::sort(active.begin(), active.end(), byX);
}

// Appends the runs of one row from its crossings, sorted by x.
void appendRowRuns(std::vector<PixelRun>& runs, const std::vector<Crossing>& crossings, int row, int width)
{
    int winding = 0;
    double spanStart = 0;
    for (const Crossing& c : crossings) {
        const int before = winding;
        winding += c.winding;
        if (before == 0 && winding != 0) {
            spanStart = c.x;
        } else if (before != 0 && winding == 0) {
            const int from = std::max(int(std::ceil(spanStart - 0.5)), 0);
            const int to = std::min(int(std::ceil(c.x - 0.5)), width);
            if (from >= to)
                continue;
            if (!runs.empty() && runs.back().y == row && runs.back().x + runs.back().width >= from)
                runs.back().width = std::max(runs.back().width, to - runs.back().x);
            else
                runs.push_back({from, row, to - from});
        }
    }
}

}  // namespace

std::vector<PixelRun> polygonRuns(std::span<const PixelPoint> outline, int width, int height)
{
    std::vector<PixelRun> runs;
    if (outline.size() < 3 || width <= 0 || height <= 0)
        return runs;
    const auto starting = edgesByFirstRow(outline, height);
    std::vector<Edge> active;
    std::vector<Crossing> crossings;
    for (int row = 0; row < height; ++row) {
        std::erase_if(active, [row](const Edge& e) { return e.lastRow < row; });
        const auto& fresh = starting[std::size_t(row)];
        active.insert(active.end(), fresh.begin(), fresh.end());
        if (active.empty())
            continue;
        const double centre = row + 0.5;
        for (Edge& e : active)
            e.x = e.x0 + (centre - e.y0) * e.slope;
        keepSortedByX(active, fresh.size());
        crossings.clear();
        for (const Edge& e : active)
            crossings.push_back({e.x, e.winding});
        appendRowRuns(runs, crossings, row, width);
    }
    return runs;
}

}  // namespace qor
