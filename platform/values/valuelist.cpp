#include <values/valuelist.h>

template class ValueList<QString, FormatString<QString>, StreamFormat<QString, FormatString<QString>>>;
