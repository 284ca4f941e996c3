#pragma once

#include <functional>
#include <QString>
#include <QVector>
#include <reportlayer/elementtable.h>
#include <reportlayer/reportlayer_export.h>

namespace REPORTGENERATOR {

/// Something that reading or checking found wrong.
struct REPORTLAYER_EXPORT Problem
{
    int line = 0;   // from 1; 0 when there is no position
    int column = 0; // of the place where reading stood, from 0
    QString reason;
};

/// Told now and then how far reading has come. \param done, total  in characters of the text
/// \return false to stop reading
using ReadProgress = std::function<bool(int done, int total)>;

/// Base of every file element: a value that can be copied, knows which of its parts are set, and is read from
/// and written to XML text by one engine that a constant table guides (table()).
///
/// What the table does not know - elements, attributes, comments, processing instructions - is kept and
/// written again behind the sibling that it followed, and so is a value that does not convert. Elements are
/// GUI thread objects; different elements may be used in different threads. None of the operations throws.
class REPORTLAYER_EXPORT IRGObject
{
public:
    virtual ~IRGObject();

    /// Replaces the content by what the text holds. References to child elements stay valid.
    /// \param text   a whole document or one element, with a root name that the table accepts. At most 64 Mi
    ///               characters, 256 levels, 256 attributes an element; no DOCTYPE, no NUL character.
    /// \param whole  true: a document, its version is remembered (GetInitialVersionLoaded()) and comments
    /// beside the
    ///               root are kept; false: one element, where an empty text makes this element unset
    /// \return false, with the content as it was and the reason kept (GetCheckReason()), for text that is
    /// malformed,
    ///         has another root or breaks a bound, and, after SetValidate(true), for one that breaks the
    ///         schema
    bool SetXmlString(const QString& text, bool whole);
    /// The same for texts that take long. A reading that is stopped fails like one of malformed text.
    /// \param progress  may be empty
    bool SetXmlString(const QString& text, bool whole, const ReadProgress& progress);

    /// The content as text in the one layout of all files: two blanks a level, attributes in table order, set
    /// or required fields only. An enumeration that has no value is left out even when it is required. \param
    /// whole  true: with XML declaration, version and a line end; false: the element alone, which is empty
    ///               for an element that is not set
    QString GetXmlString(bool whole = false) const;

    /// Makes the following loads and calls of Check() validate against the schema, or not. Off at first.
    void SetValidate(bool on);
    bool GetValidate() const;

    /// Checks the content and keeps the first thing that is wrong. With validation on: against the schema, by
    /// the text that was loaded as long as nothing was changed since, so that line and column are those of
    /// the file, else by the text that GetXmlString() gives. With validation off: whether the last load
    /// succeeded and all its values converted.
    bool Check();
    /// Where the last Check() or SetXmlString() that failed found something; 0 after one that succeeded.
    int GetCheckLine() const;
    int GetCheckColumn() const;
    /// What it found; empty after success.
    QString GetCheckReason() const;
    /// What the last successful load left aside though it kept the text: values that do not convert, elements
    /// given more often than they may be. The first hundred at most.
    QVector<Problem> problems() const;

    /// Version text in the root of the last document that was loaded; null before, and null when it had none.
    QString GetInitialVersionLoaded() const;

    /// Merges: each field that is set in \p other replaces ours, in child elements likewise; a list that is
    /// not empty replaces the whole list; another alternative of a choice replaces ours. Unset fields of \p
    /// other change nothing. \return false, with nothing changed, if \p other is of another class
    bool TakeOver(const IRGObject& other);

    /// Whether this element counts as present: something in it was set, or a text with it was loaded.
    bool isSet() const;
    /// Makes the element unset and empty.
    void reset();
    const ElementTable& table() const { return *m_table; }

protected:
    explicit IRGObject(const ElementTable& table);
    IRGObject(const IRGObject& other);
    IRGObject(IRGObject&& other) noexcept;
    IRGObject& operator=(const IRGObject& other);
    IRGObject& operator=(IRGObject&& other) noexcept;

    // What the generated accessors are made of. The number of a field is its position in the table.
    bool isFieldSet(int field) const;
    void resetField(int field);
    qint64 integerAt(int field) const;
    double realAt(int field) const;
    QString textAt(int field) const;
    void setInteger(int field, qint64 value); // a number that the enumeration does not have changes nothing
    void setReal(int field, double value);
    void setText(int field, const QString& value);
    const IRGObject& elementAt(int field) const;
    IRGObject& elementAt(int field);
    void setElement(int field, const IRGObject& value);
    const void* listAt(int field) const;
    void* listAt(int field);
    int chosen() const; // number of the alternative that is set, from 0; -1: none

private:
    friend class ElementAccess;
    union Cell;
    struct Extras;

    Cell* makeCells();
    void destroyCells();
    void resetContent();
    void copyContent(const IRGObject& other);
    void takeContent(IRGObject& other);
    void mergeContent(const IRGObject& other);
    void mergeField(int field, const IRGObject& other);
    void markSet(int field);
    void forgetForeign(int field);
    void handOutAlternative(int field);
    bool isChangedWithin() const;
    int itemCount(int field) const;

    const ElementTable* m_table; // Not owned, constant.
    Cell* m_cells = nullptr;     // Owned, one for each field; null until something is set.
    Extras* m_extras = nullptr;  // Owned; null as long as there is nothing beside the fields.
    quint64 m_set = 0;           // a bit for each simple field that is set, or the alternative last asked for
    bool m_present = false;      // set by a setter of its own or by loading
    bool m_changed = false;      // since it was made or loaded
    bool m_replaced = false;     // its whole content, since an element around it was loaded
    bool m_validate = false;
};

} // namespace REPORTGENERATOR
