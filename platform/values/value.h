#pragma once

#include <values/formats.h>
#include <values/valuebase.h>

namespace ValueCompare {
/// Whether a setter has nothing to do. NaN equals itself.
template <class T>
bool isSame(const T& a, const T& b)
{
    return a == b;
}
inline bool isSame(double a, double b)
{
    return a == b || (a != a && b != b);
}
} // namespace ValueCompare

/// A value of type T. F says how it reads as text, S how it is written to a stream. The combinations in use
/// are instantiated in this library, see the end of this header.
template <class T, class F, class S>
class VALUES_EXPORT Value : public ValueBase
{
public:
    /// 0, false or the empty text.
    Value() = default;
    ~Value() override { Leave(); }

    T GetValue() const { return m_value; }
    /// Tells CHANGE_VALUE.
    bool SetValue(const T& value, IObserver* except = nullptr)
    {
        // Not virtual, since values without limits are set by far most often.
        return m_isLimited ? setLimited(value, except) : store(value, except);
    }

    QString GetText() const override { return F::ToText(m_value); }
    bool SetText(const QString& text, IObserver* except = nullptr) override
    {
        T value{};
        return F::FromText(text, &value) && SetValue(value, except);
    }

    /// Writes one line.
    void Write(QTextStream& stream) const { S::Write(stream, m_value); }
    /// Takes one line off the stream, as SetText().
    bool Read(QTextStream& stream, IObserver* except = nullptr)
    {
        T value{};
        return S::Read(stream, &value) && SetValue(value, except);
    }

protected:
    /// For values that do not take everything.
    struct Limited
    {
    };
    explicit Value(Limited)
        : m_isLimited(true)
    {
    }

    /// SetValue() of limited values.
    virtual bool setLimited(const T& value, IObserver* except) { return store(value, except); }
    bool store(const T& value, IObserver* except)
    {
        if (!ValueCompare::isSame(m_value, value)) {
            m_value = value;
            NotifyObservers(CHANGE_VALUE, except);
        }
        return true;
    }

    T m_value{};

private:
    const bool m_isLimited = false;
};

extern template class Value<bool, FormatBool<bool>, StreamFormat<bool, FormatBool<bool>>>;
extern template class Value<double, FormatFloat<double>, StreamFormat<double, FormatFloat<double>>>;
extern template class Value<int, FormatInt<int>, StreamFormat<int, FormatInt<int>>>;
extern template class Value<__int64, FormatInt64<__int64>, StreamFormat<__int64, FormatInt64<__int64>>>;
extern template class Value<QString, FormatString<QString>, StreamFormat<QString, FormatString<QString>>>;

using ValueBool = Value<bool, FormatBool<bool>, StreamFormat<bool, FormatBool<bool>>>;
using ValueDouble = Value<double, FormatFloat<double>, StreamFormat<double, FormatFloat<double>>>;
using ValueInt = Value<int, FormatInt<int>, StreamFormat<int, FormatInt<int>>>;
using ValueInt64 = Value<__int64, FormatInt64<__int64>, StreamFormat<__int64, FormatInt64<__int64>>>;
using ValueString = Value<QString, FormatString<QString>, StreamFormat<QString, FormatString<QString>>>;
