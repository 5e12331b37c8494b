// SPDX-License-Identifier: MIT
#include "figure.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <unistd.h>

namespace tarnwick::bench {

namespace {

constexpr std::size_t minRounds = 9;
/// A narrower interval is settled, on whichever side of it the target lies.
constexpr double settledWidth = 0.03;

std::size_t maxRounds = minRounds;
std::FILE* output = nullptr;
bool hasMissedOne = false;

void writeLine(const QString& name, const QString& median, const QString& range,
               const QString& target, const QString& verdict, const QString& what)
{
    const QString line = QStringLiteral("%1 %2 %3 %4 %5 %6")
                             .arg(name, -9)
                             .arg(median, 8)
                             .arg(range, 18)
                             .arg(target, 8)
                             .arg(verdict, -10)
                             .arg(what);
    std::fprintf(output, "%s\n", line.trimmed().toUtf8().constData());
    std::fflush(output);
}

std::vector<double> sorted(std::vector<double> samples)
{
    std::ranges::sort(samples);
    return samples;
}

} // namespace

bool Figure::hasEnough() const
{
    if (m_samples.size() < minRounds)
        return false;
    return m_samples.size() >= maxRounds || verdict() != Verdict::noisy;
}

double Figure::median() const
{
    const std::vector<double> samples = sorted(m_samples);
    const std::size_t middle = samples.size() / 2;
    return samples.size() % 2 == 1 ? samples[middle] : (samples[middle - 1] + samples[middle]) / 2;
}

Figure::Verdict Figure::verdict() const
{
    if (!m_target)
        return Verdict::met;
    const auto [low, high] = interval();
    const bool isSettled = high - low <= settledWidth * median();
    if (low <= *m_target && high > *m_target && !isSettled)
        return Verdict::noisy;
    return median() <= *m_target ? Verdict::met : Verdict::missed;
}

void Figure::report() const
{
    const std::vector<double> samples = sorted(m_samples);
    const QString range =
        samples.size() > 1
            ? QStringLiteral("%1 to %2").arg(text(samples.front()), text(samples.back()))
            : QString();
    QString verdictText;
    if (m_target) {
        const Verdict reached = verdict();
        verdictText = reached == Verdict::met      ? QStringLiteral("met")
                      : reached == Verdict::missed ? QStringLiteral("MISSED")
                                                   : QStringLiteral("too noisy");
        hasMissedOne = hasMissedOne || reached == Verdict::missed;
    }
    writeLine(m_name, text(median()), range, m_target ? text(*m_target) : QString(), verdictText,
              m_what);
}

std::pair<double, double> Figure::interval() const
{
    const std::vector<double> samples = sorted(m_samples);
    const auto count = static_cast<double>(samples.size());
    const auto cut = static_cast<std::size_t>(std::max(0.0, (count - 1.96 * std::sqrt(count)) / 2));
    return {samples[cut], samples[samples.size() - 1 - cut]};
}

QString Figure::text(double value) const
{
    if (m_unit == Unit::milliseconds)
        return QString::number(value, 'f', value < 10 ? 1 : 0) + QStringLiteral(" ms");
    return QString::number(value, 'f', m_unit == Unit::ratio ? 2 : 0);
}

void openReport(std::size_t rounds)
{
    maxRounds = std::max(minRounds, rounds);
    output = fdopen(dup(STDOUT_FILENO), "w");
    if (!output || !std::freopen("/dev/null", "w", stdout))
        std::abort();
    writeLine(QStringLiteral("figure"), QStringLiteral("median"), QStringLiteral("range"),
              QStringLiteral("target"), QStringLiteral("verdict"), {});
}

void reportSkipped(const QString& name, const QString& reason)
{
    writeLine(name, {}, {}, {}, {}, reason);
}

int exitStatus()
{
    return hasMissedOne ? EXIT_FAILURE : EXIT_SUCCESS;
}

} // namespace tarnwick::bench
