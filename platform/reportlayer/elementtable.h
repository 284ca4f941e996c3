#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>
#include <reportlayer/reportlayer_export.h>

// The field tables: constant data that the generator writes, one table per class of file element. They are
// the one description that reading, writing, checking, merging and every tool share. All of it may be read
// from any thread and during static initialisation.

namespace REPORTGENERATOR {

class IRGObject;
struct ElementTable;
struct ListOperations;

/// What a field holds. An Enumeration is kept as its number, an Element is an object of its own.
enum class FieldKind : quint8 { Boolean, Int, Long, Float, Double, String, DateTime, Enumeration, Element };

/// The values of an enumeration, numbered from 0 in the order of the schema.
struct REPORTLAYER_EXPORT EnumTable
{
    const char* context;         // translation context of the GUI texts
    const char* const* names;    // as written into files
    const char* const* guiTexts; // as shown, before translation
    int count;

    /// Name as written into files; a null string for a number that does not exist.
    QString name(int number) const;
    /// Text for the user, translated; a null string for a number that does not exist.
    QString guiText(int number) const;
    /// Number of a name, which must match exactly; -1 for any other text.
    int number(const QString& name) const;
    QStringList allNames() const;
    /// Parallel to allNames().
    QStringList allGuiTexts() const;
};

/// One attribute or child element of a file element.
struct REPORTLAYER_EXPORT Field
{
    const char* name; // as written into files
    int nameLength;
    FieldKind kind;
    bool attribute = false;            // written into the start tag
    bool list = false;                 // may be repeated
    bool required = false;             // a valid file has it
    const char* context = nullptr;     // translation context of label and help
    const char* labelText = nullptr;   // null: none
    const char* unitText = nullptr;    // null: none
    const char* helpText = nullptr;    // null: none
    const char* defaultText = nullptr; // null: the neutral value of the kind
    qint64 defaultInteger = 0;         // of Boolean, Int, Long, Enumeration
    double defaultReal = 0.0;          // of Float, Double
    bool hasMinimum = false;           // the schema gives one, beside the limits of the kind
    bool hasMaximum = false;           // likewise
    qint64 minimumInteger = 0;
    qint64 maximumInteger = 0;
    double minimumReal = 0.0;
    double maximumReal = 0.0;
    const EnumTable* enumeration = nullptr;         // of an Enumeration only
    const ElementTable* element = nullptr;          // of an Element only
    const ListOperations* listOperations = nullptr; // of a list only

    constexpr Field(const char* fieldName, FieldKind fieldKind)
        : name(fieldName)
        , nameLength(lengthOf(fieldName))
        , kind(fieldKind)
        , defaultInteger(fieldKind == FieldKind::Enumeration ? -1 : 0)
    {
    }
    /// Sets one member; how a row of a table is written.
    template <class Member, class Given>
    constexpr Field& with(Member Field::*member, Given value)
    {
        this->*member = value;
        return *this;
    }

    /// Short name for the user, translated; the field's name when the schema gives none.
    QString label() const;
    /// Physical unit such as "Hz"; empty when there is none.
    QString unit() const;
    /// One sentence for the user, translated; may be empty.
    QString help() const;
    /// Value of a field that is not set; a list has none (invalid).
    QVariant defaultValue() const;
    /// Least value that a valid file may hold: the schema's, else the kind's. Invalid unless the field is a
    /// number.
    QVariant minimum() const;
    /// Greatest value, like minimum().
    QVariant maximum() const;
    bool isNumber() const { return kind >= FieldKind::Int && kind <= FieldKind::Double; }
    bool isInRange(qint64 value) const;
    /// \return false for NaN when there is a limit
    bool isInRange(double value) const;

private:
    static constexpr int lengthOf(const char* text)
    {
        int length = 0;
        while (text[length] != '\0')
            ++length;
        return length;
    }
};

/// The text of a schema with everything that it includes, by lines, and the version that it declares.
struct REPORTLAYER_EXPORT SchemaText
{
    const char* name; // file name of the schema
    const char* const* lines;
    int lineCount;
    const char* version;

    QByteArray text() const;
};

/// One class of file elements. At most 64 fields; attributes come first, then child elements in file order.
struct REPORTLAYER_EXPORT ElementTable
{
    const char* className;            // of the C++ class and of the schema's type
    const char* elementName;          // written when the element stands alone
    const char* const* acceptedNames; // root names that reading accepts, elementName among them
    int acceptedNameCount;
    const Field* fields;
    int fieldCount;
    quint64 requiredFields; // a bit for each field that a valid element has
    quint64 elementFields;  // a bit for each field that holds elements
    bool choice;            // at most one of the child elements is present
    bool documentRoot;      // a file of this kind exists
    const SchemaText* schema;
    IRGObject* (*create)();             // a new element, owned by the caller
    const IRGObject& (*emptyElement)(); // one that is shared and never changes

    /// \return position in fields, or -1
    int fieldIndex(const QString& name) const;
    bool accepts(const QString& rootName) const;
    /// Position of the first child element; fieldCount if there is none.
    int firstElement() const;
    /// Name of an alternative of a choice; a null string for a number that does not exist.
    QString alternativeName(int number) const;
};

/// The bits of ElementTable::requiredFields.
template <int COUNT>
constexpr quint64 requiredFieldsOf(const Field (&fields)[COUNT])
{
    quint64 result = 0;
    for (int i = 0; i < COUNT; ++i)
        result |= static_cast<quint64>(fields[i].required) << i;
    return result;
}

/// The bits of ElementTable::elementFields.
template <int COUNT>
constexpr quint64 elementFieldsOf(const Field (&fields)[COUNT])
{
    quint64 result = 0;
    for (int i = 0; i < COUNT; ++i)
        result |= static_cast<quint64>(fields[i].kind == FieldKind::Element) << i;
    return result;
}

/// Which element carries a parameter set.
struct REPORTLAYER_EXPORT ParameterSet
{
    const char* name; // such as "TunerSettings"
    const char* context;
    const char* labelText;
    const ElementTable* table;

    /// Name for the user, translated.
    QString label() const;
};

} // namespace REPORTGENERATOR
