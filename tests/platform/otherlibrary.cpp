#include <values/valuenumeric.h>

#include <typeinfo>

// A library that is loaded at run time and makes values on its own, as a plug-in does. Kinds are those of the
// test.

namespace {

const int KIND_INT64 = 3;

} // namespace

extern "C" {

Q_DECL_EXPORT ValueBase* makeNumericInOtherLibrary(int kind)
{
    if (kind == KIND_INT64)
        return new NumericInt64;
    return new NumericDouble;
}

Q_DECL_EXPORT const std::type_info* numericTypeOfOtherLibrary(int kind)
{
    return kind == KIND_INT64 ? &typeid(NumericInt64) : &typeid(NumericDouble);
}
}
