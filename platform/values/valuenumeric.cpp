#include <values/valuenumeric.h>

NumericView::~NumericView() = default;

template class ValueNumeric<double, FormatFloat<double>, StreamFormat<double, FormatFloat<double>>>;
template class ValueNumeric<int, FormatInt<int>, StreamFormat<int, FormatInt<int>>>;
template class ValueNumeric<__int64, FormatInt64<__int64>, StreamFormat<__int64, FormatInt64<__int64>>>;
