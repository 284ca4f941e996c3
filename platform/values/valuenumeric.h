#pragma once

#include <values/value.h>

#include <algorithm>
#include <limits>

/// The numbers of a ValueNumeric whatever its type, for those who show or script it. 64-bit integers beyond
/// 2^53 lose precision.
class VALUES_EXPORT NumericView
{
public:
    virtual ~NumericView();

    virtual double GetDoubleValue() const = 0;
    virtual double GetDoubleMin() const = 0;
    virtual double GetDoubleMax() const = 0;
    virtual double GetDoubleStep() const = 0;
};

/// A number within bounds. At first the bounds are those of the type and the step is 1 (double: 0, which
/// means free). The step is a hint for those who edit the value; values between two steps are kept.
///
/// A range that no longer holds the value takes it to the nearest bound and tells CHANGE_RANGE, then
/// CHANGE_VALUE. All setters refuse NaN.
template <class T, class F, class S>
class VALUES_EXPORT ValueNumeric : public Value<T, F, S>, public NumericView
{
public:
    ValueNumeric()
        : Value<T, F, S>(typename Value<T, F, S>::Limited())
    {
    }
    ~ValueNumeric() override { this->Leave(); }

    T GetMin() const { return m_min; }
    T GetMax() const { return m_max; }
    T GetStep() const { return m_step; }

    /// A minimum above the maximum takes the maximum along.
    bool SetMin(const T& min, IObserver* except = nullptr)
    {
        return min == min && change(min, std::max(min, m_max), m_step, except);
    }
    /// A maximum below the minimum takes the minimum along.
    bool SetMax(const T& max, IObserver* except = nullptr)
    {
        return max == max && change(std::min(max, m_min), max, m_step, except);
    }
    /// Refuses steps below 0.
    bool SetStep(const T& step, IObserver* except = nullptr)
    {
        return step >= 0 && change(m_min, m_max, step, except);
    }
    /// Refuses a minimum above the maximum and steps below 0.
    bool SetMinMax(const T& min, const T& max, const T& step, IObserver* except = nullptr)
    {
        return min <= max && step >= 0 && change(min, max, step, except);
    }

    double GetDoubleValue() const override { return static_cast<double>(this->m_value); }
    double GetDoubleMin() const override { return static_cast<double>(m_min); }
    double GetDoubleMax() const override { return static_cast<double>(m_max); }
    double GetDoubleStep() const override { return static_cast<double>(m_step); }

private:
    bool setLimited(const T& value, IObserver* except) override
    {
        return value == value && this->store(std::clamp(value, m_min, m_max), except);
    }
    bool change(const T& min, const T& max, const T& step, IObserver* except)
    {
        const T value = std::clamp(this->m_value, min, max);
        const bool isRangeChanged = min != m_min || max != m_max || step != m_step;
        const bool isValueChanged = value != this->m_value;
        m_min = min;
        m_max = max;
        m_step = step;
        this->m_value = value;
        if (isRangeChanged && !this->NotifyObservers(CHANGE_RANGE, except))
            return true;
        if (isValueChanged)
            this->NotifyObservers(CHANGE_VALUE, except);
        return true;
    }

    T m_min = std::numeric_limits<T>::lowest();
    T m_max = std::numeric_limits<T>::max();
    T m_step = std::numeric_limits<T>::is_integer ? 1 : 0;
};

extern template class ValueNumeric<double, FormatFloat<double>, StreamFormat<double, FormatFloat<double>>>;
extern template class ValueNumeric<int, FormatInt<int>, StreamFormat<int, FormatInt<int>>>;
extern template class ValueNumeric<__int64, FormatInt64<__int64>,
                                   StreamFormat<__int64, FormatInt64<__int64>>>;

using NumericDouble = ValueNumeric<double, FormatFloat<double>, StreamFormat<double, FormatFloat<double>>>;
using NumericInt = ValueNumeric<int, FormatInt<int>, StreamFormat<int, FormatInt<int>>>;
using NumericInt64 = ValueNumeric<__int64, FormatInt64<__int64>, StreamFormat<__int64, FormatInt64<__int64>>>;
