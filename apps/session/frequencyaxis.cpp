#include "frequencyaxis.h"

#include <algorithm>
#include <cmath>

namespace {
constexpr double MARGIN = 0.03;     // Of the length, on both sides.
constexpr double LEAST_DECADE = 10; // From this ratio on, steps by factors read better than equal steps.

// The smallest of 1, 2, 5, 10, 20 ... that is not below the number.
double niceStep(double least)
{
    const double power = std::pow(10, std::floor(std::log10(std::max(least, 1.0))));
    for (const double factor : {1.0, 2.0, 5.0}) {
        if (factor * power >= least * (1 - 1e-9))
            return factor * power;
    }
    return 10 * power;
}

QVector<qint64> equalSteps(double from, double to, int most)
{
    QVector<qint64> result;
    const double step = niceStep((to - from) / most);
    for (double tick = std::ceil(from / step) * step; tick <= to && result.size() < most; tick += step)
        result.append(std::llround(tick));
    return result;
}

QVector<qint64> powers(double from, double to, int most)
{
    const int first = int(std::ceil(std::log10(from) - 1e-9));
    const int last = int(std::floor(std::log10(to) + 1e-9));
    const int stride = std::max(1, int(std::ceil(double(last - first + 1) / most)));
    QVector<qint64> result;
    for (int power = first; power <= last; power += stride)
        result.append(std::llround(std::pow(10, power)));
    return result;
}

QVector<qint64> byFactors(double from, double to, int most)
{
    QVector<qint64> result;
    for (int power = int(std::floor(std::log10(from))); std::pow(10, power) <= to; ++power) {
        for (const double factor : {1.0, 2.0, 5.0}) {
            const double tick = factor * std::pow(10, power);
            if (tick >= from && tick <= to)
                result.append(std::llround(tick));
        }
    }
    return result.size() <= most ? result : powers(from, to, most);
}
} // namespace

namespace Session {

void FrequencyAxis::setRange(qint64 from, qint64 to)
{
    m_lowest = std::max<qint64>(0, std::min(from, to));
    m_highest = std::max(from, to);
    update();
}

void FrequencyAxis::setLogarithmic(bool isLogarithmic)
{
    m_isLogarithmic = isLogarithmic;
    update();
}

double FrequencyAxis::unitOf(double frequency) const
{
    return (scaled(frequency) - m_from) / (m_to - m_from);
}

double FrequencyAxis::frequencyAt(double unit) const
{
    const double place = m_from + unit * (m_to - m_from);
    return m_isLogarithmic ? std::pow(10, place) : std::max(0.0, place);
}

QVector<qint64> FrequencyAxis::ticks(double fromUnit, double toUnit, int most) const
{
    const double from = frequencyAt(fromUnit);
    const double to = frequencyAt(toUnit);
    return m_isLogarithmic && to >= from * LEAST_DECADE
               ? byFactors(std::max(from, 1.0), to, std::max(1, most))
               : equalSteps(from, to, std::max(1, most));
}

double FrequencyAxis::scaled(double frequency) const
{
    return m_isLogarithmic ? std::log10(std::max(frequency, 1.0)) : frequency;
}

void FrequencyAxis::update()
{
    m_from = scaled(double(m_lowest));
    m_to = scaled(double(m_highest));
    // A single frequency stands in the middle.
    const double length = m_to > m_from ? m_to - m_from : m_isLogarithmic ? 0.1 : 10000;
    const double margin = m_to > m_from ? MARGIN * length : length;
    m_from = std::max(0.0, m_from - margin);
    m_to += margin;
}

} // namespace Session
