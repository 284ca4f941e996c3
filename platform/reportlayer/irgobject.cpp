#include "elementaccess_p.h"
#include "elementreader_p.h"
#include "elementwriter_p.h"
#include "schemacheck_p.h"
#include <algorithm>

namespace REPORTGENERATOR {

IRGObject::IRGObject(const ElementTable& table)
    : m_table(&table)
{
}

IRGObject::IRGObject(const IRGObject& other)
    : m_table(other.m_table)
    , m_validate(other.m_validate)
{
    copyContent(other);
}

IRGObject::IRGObject(IRGObject&& other) noexcept
    : m_table(other.m_table)
    , m_validate(other.m_validate)
{
    takeContent(other);
}

IRGObject& IRGObject::operator=(const IRGObject& other)
{
    if (this != &other) {
        IRGObject copied(other);
        *this = std::move(copied);
    }
    return *this;
}

IRGObject& IRGObject::operator=(IRGObject&& other) noexcept
{
    if (this != &other) {
        takeContent(other);
        m_validate = other.m_validate;
        m_replaced = true;
    }
    return *this;
}

IRGObject::~IRGObject()
{
    destroyCells();
    delete m_extras;
}

bool IRGObject::SetXmlString(const QString& text, bool whole)
{
    return SetXmlString(text, whole, ReadProgress());
}

bool IRGObject::SetXmlString(const QString& text, bool whole, const ReadProgress& progress)
{
    if (text.isEmpty() && !whole) {
        reset();
        return true;
    }
    IRGObject loaded(*m_table);
    Problem failure;
    if (!readElementText(text, loaded, whole, progress, &failure)) {
        ElementAccess::makeExtras(*this).failure = failure;
        return false;
    }
    const Extras& found = *loaded.m_extras; // readElementText() made them
    if (m_validate && !found.followsTable && !keepsToSchema(*m_table, found.rootName, text, &failure)) {
        ElementAccess::makeExtras(*this).failure = failure;
        return false;
    }
    takeContent(loaded);
    m_replaced = true;
    return true;
}

QString IRGObject::GetXmlString(bool whole) const
{
    return whole ? documentText(*this) : elementText(*this);
}

void IRGObject::SetValidate(bool on)
{
    m_validate = on;
}

bool IRGObject::GetValidate() const
{
    return m_validate;
}

bool IRGObject::Check()
{
    Extras& extras = ElementAccess::makeExtras(*this);
    if (!m_validate)
        return extras.failure.reason.isEmpty() && extras.problems.isEmpty();
    extras.failure = Problem();
    const bool asLoaded = extras.loaded && !isChangedWithin();
    if (asLoaded && extras.followsTable)
        return true;
    if (asLoaded)
        return keepsToSchema(*m_table, extras.rootName, extras.loadedText, &extras.failure);
    const QString text = documentText(*this);
    return keepsToSchema(*m_table, QString::fromLatin1(m_table->elementName), text, &extras.failure);
}

int IRGObject::GetCheckLine() const
{
    return m_extras ? m_extras->failure.line : 0;
}

int IRGObject::GetCheckColumn() const
{
    return m_extras ? m_extras->failure.column : 0;
}

QString IRGObject::GetCheckReason() const
{
    return m_extras ? m_extras->failure.reason : QString();
}

QVector<Problem> IRGObject::problems() const
{
    return m_extras ? m_extras->problems : QVector<Problem>();
}

QString IRGObject::GetInitialVersionLoaded() const
{
    return m_extras ? m_extras->version : QString();
}

bool IRGObject::TakeOver(const IRGObject& other)
{
    if (m_table != other.m_table)
        return false;
    if (this != &other)
        mergeContent(other);
    return true;
}

void IRGObject::reset()
{
    resetContent();
    m_changed = true;
}

void IRGObject::resetField(int field)
{
    const Field& row = m_table->fields[field];
    forgetForeign(field);
    m_changed = true;
    if (!m_cells)
        return;
    if (row.list)
        row.listOperations->assign(listAt(field), row.listOperations->emptyList());
    else if (row.kind != FieldKind::Element)
        m_set &= ~(Q_UINT64_C(1) << field);
    else if (m_cells[field].element)
        m_cells[field].element->reset();
}

qint64 IRGObject::integerAt(int field) const
{
    return ElementAccess::bit(*this, field) ? m_cells[field].integer : m_table->fields[field].defaultInteger;
}

double IRGObject::realAt(int field) const
{
    return ElementAccess::bit(*this, field) ? m_cells[field].real : m_table->fields[field].defaultReal;
}

QString IRGObject::textAt(int field) const
{
    if (ElementAccess::bit(*this, field))
        return m_cells[field].text;
    return QString::fromUtf8(m_table->fields[field].defaultText);
}

void IRGObject::setInteger(int field, qint64 value)
{
    const Field& row = m_table->fields[field];
    if (row.kind == FieldKind::Enumeration && (value < 0 || value >= row.enumeration->count))
        return;
    ElementAccess::cells(*this)[field].integer = value;
    markSet(field);
}

void IRGObject::setReal(int field, double value)
{
    ElementAccess::cells(*this)[field].real = value;
    markSet(field);
}

void IRGObject::setText(int field, const QString& value)
{
    ElementAccess::cells(*this)[field].text = value;
    markSet(field);
}

const IRGObject& IRGObject::elementAt(int field) const
{
    const bool there = m_cells && m_cells[field].element && (!m_table->choice || isFieldSet(field));
    return there ? *m_cells[field].element : m_table->fields[field].element->emptyElement();
}

IRGObject& IRGObject::elementAt(int field)
{
    Cell& cell = ElementAccess::cells(*this)[field];
    if (m_table->choice)
        handOutAlternative(field);
    if (!cell.element)
        cell.element = m_table->fields[field].element->create();
    return *cell.element;
}

void IRGObject::setElement(int field, const IRGObject& value)
{
    IRGObject& target = elementAt(field);
    target = value;
    target.m_present = true;
    m_present = true;
    m_changed = true;
    forgetForeign(field);
}

const void* IRGObject::listAt(int field) const
{
    const void* list = m_cells ? m_cells[field].list : nullptr;
    return list ? list : m_table->fields[field].listOperations->emptyList();
}

void* IRGObject::listAt(int field)
{
    Cell& cell = ElementAccess::cells(*this)[field];
    if (!cell.list)
        cell.list = m_table->fields[field].listOperations->make();
    m_changed = true;
    return cell.list;
}

void IRGObject::markSet(int field)
{
    ElementAccess::setBit(*this, field);
    m_present = true;
    m_changed = true;
    forgetForeign(field);
}

void IRGObject::forgetForeign(int field)
{
    if (!m_extras || m_extras->foreign.isEmpty())
        return;
    QVector<ForeignPart>& parts = m_extras->foreign;
    const auto stands = [field](const ForeignPart& part) {
        return part.kind == ForeignPart::Instead && part.field == field;
    };
    parts.erase(std::remove_if(parts.begin(), parts.end(), stands), parts.end());
}

FieldValue ElementAccess::value(const IRGObject& e, int field)
{
    FieldValue result;
    switch (e.table().fields[field].kind) {
    case FieldKind::Float:
    case FieldKind::Double:
        result.real = e.realAt(field);
        break;
    case FieldKind::String:
    case FieldKind::DateTime:
        result.text = e.textAt(field);
        break;
    default:
        result.integer = e.integerAt(field);
        break;
    }
    return result;
}

void ElementAccess::setValue(IRGObject& e, int field, const FieldValue& value)
{
    switch (e.table().fields[field].kind) {
    case FieldKind::Float:
    case FieldKind::Double:
        e.setReal(field, value.real);
        break;
    case FieldKind::String:
    case FieldKind::DateTime:
        e.setText(field, value.text);
        break;
    default:
        e.setInteger(field, value.integer);
        break;
    }
}

} // namespace REPORTGENERATOR
