#include "balance/report.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <sstream>
#include <string_view>

namespace balance {

namespace {

constexpr int kLeft = 150, kWidth = 640, kRow = 16, kTop = 40;
constexpr std::array<std::string_view, 3> kColours{"#1e5a5c", "#e3a52f", "#8e1b14"};  // easy, normal, hard
constexpr std::string_view kLegend = " (Easy green, Normal yellow, Hard red";

std::string_view ColourOf(const Sample& sample)
{
    return kColours.at(static_cast<std::size_t>(sample.level));
}

void Begin(std::ostream& out, int height, const std::string& title)
{
    out << "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"820\" height=\"" << height
        << "\" font-family=\"sans-serif\" font-size=\"11\">\n<rect width=\"820\" height=\"" << height
        << "\" fill=\"#f3e7c9\"/>\n<text x=\"10\" y=\"20\" font-size=\"14\">" << title << "</text>\n";
}

// One box a bot and level: quartiles, median, shortest and longest.
std::string BoxPlot(const std::vector<Sample>& samples, const std::string& title,
                    std::int64_t (Sample::*at)(double) const)
{
    std::int64_t most = 1;
    for (const Sample& sample : samples) {
        most = std::max(most, (sample.*at)(1));
    }
    const auto x = [&](const Sample& sample, double share) {
        return kLeft + (sample.*at)(share)*kWidth / most;
    };
    std::ostringstream out;
    Begin(out, kTop + kRow * static_cast<int>(samples.size()) + 20,
          title + std::string(kLegend) + "; right end " + std::to_string(most) + ")");
    int y = kTop;
    for (const Sample& s : samples) {
        if (s.level == 0) {
            out << "<text x=\"10\" y=\"" << y + 24 << "\">" << s.bot << "</text>\n";
        }
        out << "<path d=\"M" << x(s, 0) << ' ' << y + 7 << "H" << x(s, 1) << "\" stroke=\"" << ColourOf(s)
            << "\"/><rect x=\"" << x(s, 0.25) << "\" y=\"" << y + 2 << "\" width=\""
            << std::max<std::int64_t>(2, x(s, 0.75) - x(s, 0.25)) << "\" height=\"10\" fill=\"" << ColourOf(s)
            << "\"/><path d=\"M" << x(s, 0.5) << ' ' << y
            << "v14\" stroke=\"#14110f\" stroke-width=\"2\"/>\n";
        y += kRow;
    }
    out << "</svg>\n";
    return out.str();
}

// The mean of the games that still go on, while a tenth of them do.
std::vector<double> Means(const Sample& sample, std::vector<float> Record::*line)
{
    std::vector<double> means;
    for (std::size_t month = 0;; ++month) {
        double sum = 0;
        std::size_t games = 0;
        for (const Record& game : sample.games) {
            if ((game.*line).size() > month) {
                sum += static_cast<double>((game.*line)[month]);
                ++games;
            }
        }
        if (games == 0 || games * 10 < sample.games.size()) {
            return means;
        }
        means.push_back(sum / static_cast<double>(games));
    }
}

std::string LinePlot(const std::vector<Sample>& samples, const std::string& title,
                     std::vector<float> Record::*line, double high)
{
    constexpr int kHeight = 260;
    constexpr double kMonths = 48;
    std::ostringstream out;
    Begin(out, kHeight + kTop + 30, title + std::string(kLegend) + "; skilled dashed; 48 months)");
    const auto y = [high](double value) {
        return kTop + kHeight - std::lround(std::clamp(value / high, 0.0, 1.0) * kHeight);
    };
    for (const double tick : {0.0, high / 4, high / 2, high * 3 / 4, high}) {
        out << "<path d=\"M50 " << y(tick) << "H800\" stroke=\"#b9a77c\"/><text x=\"10\" y=\"" << y(tick) + 4
            << "\">" << std::lround(tick) << "</text>\n";
    }
    for (const Sample& s : samples) {
        if (s.bot != "careful" && s.bot != "skilled") {
            continue;
        }
        out << "<polyline fill=\"none\" stroke-width=\"2\" stroke=\"" << ColourOf(s) << '"'
            << (s.bot == "skilled" ? " stroke-dasharray=\"5 3\"" : "") << " points=\"";
        const std::vector<double> means = Means(s, line);
        for (std::size_t month = 0; month < means.size(); ++month) {
            out << std::lround(50 + 750 * static_cast<double>(month) / kMonths) << ',' << y(means[month])
                << ' ';
        }
        out << "\"/>\n";
    }
    out << "</svg>\n";
    return out.str();
}

}  // namespace

std::vector<std::pair<std::string, std::string>> Plots(const std::vector<Sample>& samples)
{
    return {{"months", BoxPlot(samples, "Months in power", &Sample::MonthsAt)},
            {"points", BoxPlot(samples, "Points in the hall", &Sample::PointsAt)},
            {"treasury", LinePlot(samples, "Treasury, millions", &Record::treasury, 200)},
            {"angriest",
             LinePlot(samples, "Opposition of the angriest faction, percent", &Record::angriest, 100)}};
}

}  // namespace balance
