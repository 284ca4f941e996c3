#include <values/value.h>

template class Value<bool, FormatBool<bool>, StreamFormat<bool, FormatBool<bool>>>;
template class Value<double, FormatFloat<double>, StreamFormat<double, FormatFloat<double>>>;
template class Value<int, FormatInt<int>, StreamFormat<int, FormatInt<int>>>;
template class Value<__int64, FormatInt64<__int64>, StreamFormat<__int64, FormatInt64<__int64>>>;
template class Value<QString, FormatString<QString>, StreamFormat<QString, FormatString<QString>>>;
