#pragma once

#include <QtGlobal>
#include <QVector>

namespace Session {

/// A frequency axis: where a frequency stands between the axis' ends, and which frequencies to write beside it.
class FrequencyAxis
{
public:
    /// From nothing to 1 MHz, logarithmic.
    FrequencyAxis() { setRange(0, 1000000); }

    /// \param from, to  in Hz; the axis is made a little longer on both sides, and never has no length
    void setRange(qint64 from, qint64 to);
    /// A logarithmic axis begins at 1 Hz at the least.
    void setLogarithmic(bool isLogarithmic);
    bool isLogarithmic() const { return m_isLogarithmic; }

    /// 0 at the low end, 1 at the high end; beyond that for frequencies outside.
    double unitOf(double frequency) const;
    /// The frequency at such a place, in Hz.
    double frequencyAt(double unit) const;
    /// Round frequencies between two places, rising.
    /// \param most  so many at the most; at least 1
    QVector<qint64> ticks(double fromUnit, double toUnit, int most) const;

private:
    double scaled(double frequency) const;
    void update();

    qint64 m_lowest = 0;  // Hz, as told.
    qint64 m_highest = 0; // Hz, as told.
    bool m_isLogarithmic = true;
    double m_from = 0; // Ends of the axis, scaled.
    double m_to = 1;
};

} // namespace Session
