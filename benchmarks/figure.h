// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>
#include <vector>

namespace tarnwick::bench {

/// One line of the report: samples of one quantity, and whether its median meets a target.
class Figure
{
public:
    enum class Unit { ratio, milliseconds, count };
    enum class Verdict { met, missed, noisy };

    /// Without a target, which is the most that meets it, the figure is only reported.
    Figure(QString name, QString what, std::optional<double> target, Unit unit = Unit::ratio)
        : m_name(std::move(name))
        , m_what(std::move(what))
        , m_target(target)
        , m_unit(unit)
    {}

    void add(double sample) { m_samples.push_back(sample); }
    void addRatio(double ours, double theirs) { add(ours / theirs); }

    /// After nine rounds where the verdict is clear, else after as many as `openReport()` allows.
    [[nodiscard]] bool hasEnough() const;
    [[nodiscard]] std::size_t rounds() const { return m_samples.size(); }
    [[nodiscard]] double median() const;
    /// Noisy if the median may as well lie on the other side of the target.
    [[nodiscard]] Verdict verdict() const;

    /// Writes the line to the stream that `openReport()` opened, and remembers the verdict.
    void report() const;

private:
    /// Contains the median of the quantity itself in 96 of 100 cases.
    [[nodiscard]] std::pair<double, double> interval() const;
    [[nodiscard]] QString text(double value) const;

    QString m_name;
    QString m_what;
    std::optional<double> m_target;
    Unit m_unit;
    std::vector<double> m_samples;
};

/// Takes standard output for the report and writes the head of its table; what the program itself
/// prints from then on is dropped. No figure gets more than `maxRounds` rounds.
void openReport(std::size_t maxRounds);
/// Writes a line for a figure that is not measured.
void reportSkipped(const QString& name, const QString& reason);
/// Of all figures reported: 0, or 1 if a target is missed.
[[nodiscard]] int exitStatus();

} // namespace tarnwick::bench
