#pragma once

#include <QString>
#include <QVector>
#include <reportlayer/fieldlist.h>
#include <reportlayer/irgobject.h>

namespace REPORTGENERATOR {

/// Text of a file that no field stands for, and its place.
struct ForeignPart
{
    enum Kind : quint8 {
        Content,        // element, comment or text behind (field, index)
        Attribute,      // attribute behind the attribute field
        FieldAttribute, // attribute of the simple element (field, index)
        Instead         // stands in the place of the field, whose value did not convert
    };
    Kind kind;
    int field; // -1: before all fields
    int index; // in a list, else 0
    QString text;
};

/// Value of one field. Which member is alive follows from the kind of the field.
union IRGObject::Cell {
    qint64 integer;
    double real;
    QString text;
    IRGObject* element; // Owned; null until it is asked for.
    void* list;         // Owned; null until it is asked for.
    Cell() {}
    ~Cell() {}
};

/// What few elements have: mostly the roots of what was loaded.
struct IRGObject::Extras
{
    QVector<ForeignPart> foreign; // in file order
    QString prolog;               // beside the root of a document
    QString epilog;
    QString version;           // of the document that was loaded
    bool loaded = false;       // the content comes from a text
    bool followsTable = false; // and that text keeps to the schema: reading it showed that for sure
    QString loadedText;        // the text, else
    QString rootName;          // and the name of its root
    QVector<Problem> problems;
    Problem failure; // of the last load or check
};

/// The engine's own view of an element: nothing here marks anything as changed.
class ElementAccess
{
public:
    using Cell = IRGObject::Cell;
    using Extras = IRGObject::Extras;

    /// The cells, made if need be; one for each field of the table.
    static Cell* cells(IRGObject& e) { return e.m_cells ? e.m_cells : e.makeCells(); }
    /// Null as long as there are none.
    static const Cell* cells(const IRGObject& e) { return e.m_cells; }
    static const Extras* extras(const IRGObject& e) { return e.m_extras; }
    static Extras& makeExtras(IRGObject& e)
    {
        if (!e.m_extras)
            e.m_extras = new Extras;
        return *e.m_extras;
    }
    static void setPresent(IRGObject& e) { e.m_present = true; }
    static void setBit(IRGObject& e, int field) { e.m_set |= Q_UINT64_C(1) << field; }
    static bool bit(const IRGObject& e, int field) { return (e.m_set >> field) & 1U; }
    static bool isFieldSet(const IRGObject& e, int field) { return e.isFieldSet(field); }
    static int itemCount(const IRGObject& e, int field) { return e.itemCount(field); }
    static void resetField(IRGObject& e, int field) { e.resetField(field); }
    static void* list(IRGObject& e, int field) { return e.listAt(field); }
    static const void* list(const IRGObject& e, int field) { return e.listAt(field); }
    static IRGObject& element(IRGObject& e, int field) { return e.elementAt(field); }
    static const IRGObject& element(const IRGObject& e, int field) { return e.elementAt(field); }
    static FieldValue value(const IRGObject& e, int field);
    static void setValue(IRGObject& e, int field, const FieldValue& value);
};

} // namespace REPORTGENERATOR
