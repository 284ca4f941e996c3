#pragma once

#include <QString>
#include <QVector>
#include <reportlayer/irgobject.h>
#include <type_traits>

// How the engine handles the lists of the generated classes, which are QVectors of many types.

namespace REPORTGENERATOR {

/// A simple value on its way between text and field: one member is used, as the kind of the field says.
struct FieldValue
{
    qint64 integer = 0; // Boolean, Int, Long, Enumeration
    double real = 0.0;  // Float, Double
    QString text;       // String, DateTime
};

/// Operations on one type of list, behind void pointers to a QVector of that type.
struct ListOperations
{
    void* (*make)();
    void* (*copy)(const void* list);
    void (*destroy)(void* list);
    void (*assign)(void* list, const void* from);
    void (*swap)(void* list, void* other);
    int (*count)(const void* list);
    const void* (*emptyList)(); // one that is shared and never changes
    // Lists of elements; null for others.
    IRGObject* (*appendElement)(void* list);
    const IRGObject* (*element)(const void* list, int index);
    IRGObject* (*changeableElement)(void* list, int index);
    // Lists of simple values; null for others.
    void (*appendValue)(void* list, const FieldValue& value);
    FieldValue (*value)(const void* list, int index);
};

template <class T>
class ListOf
{
public:
    static const ListOperations OPERATIONS;

private:
    using List = QVector<T>;
    static constexpr int FIRST_CAPACITY =
        4; // most lists are short, and growing costs more than a little space
    static constexpr bool HOLDS_ELEMENTS = std::is_base_of<IRGObject, T>::value;
    static List& at(void* list) { return *static_cast<List*>(list); }
    static const List& at(const void* list) { return *static_cast<const List*>(list); }

    static void* make() { return new List; }
    static void* copy(const void* list) { return new List(at(list)); }
    static void destroy(void* list) { delete &at(list); }
    static void assign(void* list, const void* from) { at(list) = at(from); }
    static void swap(void* list, void* other) { at(list).swap(at(other)); }
    static int count(const void* list) { return at(list).size(); }
    static const void* emptyList()
    {
        static const List empty;
        return &empty;
    }
    static IRGObject* appendElement(void* list)
    {
        if constexpr (HOLDS_ELEMENTS) {
            if (at(list).capacity() == 0)
                at(list).reserve(FIRST_CAPACITY);
            at(list).resize(at(list).size() + 1);
            return &at(list).last();
        }
        return nullptr;
    }
    static const IRGObject* element(const void* list, int index)
    {
        if constexpr (HOLDS_ELEMENTS)
            return &at(list).at(index);
        return nullptr;
    }
    static IRGObject* changeableElement(void* list, int index)
    {
        if constexpr (HOLDS_ELEMENTS)
            return &at(list)[index];
        return nullptr;
    }
    static void appendValue(void* list, const FieldValue& value)
    {
        if constexpr (std::is_same<T, QString>::value)
            at(list).append(value.text);
        else if constexpr (std::is_floating_point<T>::value)
            at(list).append(static_cast<T>(value.real));
        else if constexpr (!HOLDS_ELEMENTS)
            at(list).append(static_cast<T>(value.integer));
    }
    static FieldValue value(const void* list, int index)
    {
        FieldValue result;
        if constexpr (std::is_same<T, QString>::value)
            result.text = at(list).at(index);
        else if constexpr (std::is_floating_point<T>::value)
            result.real = at(list).at(index);
        else if constexpr (!HOLDS_ELEMENTS)
            result.integer = at(list).at(index);
        return result;
    }
};

template <class T>
constexpr ListOperations ListOf<T>::OPERATIONS = {
    &make,          &copy,    &destroy,           &assign,      &swap, &count, &emptyList,
    &appendElement, &element, &changeableElement, &appendValue, &value};

// What the tables of the generated classes refer to.

template <class T>
IRGObject* createElement()
{
    return new T;
}

template <class T>
const IRGObject& sharedElement()
{
    static const T element;
    return element;
}

template <int COUNT>
const ParameterSet* findSet(const ParameterSet (&sets)[COUNT], const QString& name)
{
    for (const ParameterSet& set : sets) {
        if (name == QLatin1String(set.name))
            return &set;
    }
    return nullptr;
}

} // namespace REPORTGENERATOR
