#include "elementaccess_p.h"
#include <new>

// How the content of an element is made, copied, merged and destroyed. Child elements that somebody may hold
// a reference to are never replaced: their content is.

namespace REPORTGENERATOR {

namespace {

bool holdsText(const Field& field)
{
    return !field.list && (field.kind == FieldKind::String || field.kind == FieldKind::DateTime);
}

bool isSingleElement(const Field& field)
{
    return field.kind == FieldKind::Element && !field.list;
}

} // namespace

IRGObject::Cell* IRGObject::makeCells()
{
    m_cells = new Cell[static_cast<size_t>(m_table->fieldCount)];
    for (int i = 0; i < m_table->fieldCount; ++i) {
        if (holdsText(m_table->fields[i]))
            new (&m_cells[i].text) QString;
        else
            m_cells[i].integer = 0; // and with it no element and no list
    }
    return m_cells;
}

void IRGObject::destroyCells()
{
    if (!m_cells)
        return;
    for (int i = 0; i < m_table->fieldCount; ++i) {
        const Field& field = m_table->fields[i];
        if (field.list && m_cells[i].list)
            field.listOperations->destroy(m_cells[i].list);
        else if (isSingleElement(field))
            delete m_cells[i].element;
        else if (holdsText(field))
            m_cells[i].text.~QString();
    }
    delete[] m_cells;
    m_cells = nullptr;
}

void IRGObject::resetContent()
{
    m_set = 0;
    m_present = false;
    m_changed = false;
    m_replaced = false;
    delete m_extras;
    m_extras = nullptr;
    if (!m_cells)
        return;
    for (int i = 0; i < m_table->fieldCount; ++i) {
        const Field& field = m_table->fields[i];
        if (field.list && m_cells[i].list)
            field.listOperations->assign(m_cells[i].list, field.listOperations->emptyList());
        else if (isSingleElement(field) && m_cells[i].element)
            m_cells[i].element->resetContent();
        else if (holdsText(field))
            m_cells[i].text = QString();
    }
}

void IRGObject::copyContent(const IRGObject& other)
{
    m_set = other.m_set;
    m_present = other.m_present;
    m_changed = other.m_changed;
    m_replaced = other.m_replaced;
    m_extras = other.m_extras ? new Extras(*other.m_extras) : nullptr;
    if (!other.m_cells)
        return;
    makeCells();
    for (int i = 0; i < m_table->fieldCount; ++i) {
        const Field& field = m_table->fields[i];
        const Cell& from = other.m_cells[i];
        if (field.list) {
            m_cells[i].list = from.list ? field.listOperations->copy(from.list) : nullptr;
        } else if (holdsText(field)) {
            m_cells[i].text = from.text;
        } else if (!isSingleElement(field)) {
            m_cells[i].integer = from.integer;
        } else if (from.element) {
            m_cells[i].element = field.element->create();
            m_cells[i].element->copyContent(*from.element);
        }
    }
}

void IRGObject::takeContent(IRGObject& other)
{
    if (!m_cells || !other.m_cells) {
        resetContent();
        if (other.m_cells)
            std::swap(m_cells, other.m_cells);
    } else {
        for (int i = 0; i < m_table->fieldCount; ++i) {
            const Field& field = m_table->fields[i];
            Cell& ours = m_cells[i];
            Cell& theirs = other.m_cells[i];
            if (field.list && ours.list && theirs.list)
                field.listOperations->swap(ours.list, theirs.list);
            else if (field.list && ours.list)
                field.listOperations->assign(ours.list, field.listOperations->emptyList());
            else if (isSingleElement(field) && ours.element && theirs.element)
                ours.element->takeContent(*theirs.element);
            else if (isSingleElement(field) && ours.element)
                ours.element->resetContent();
            else if (holdsText(field))
                ours.text.swap(theirs.text);
            else
                std::swap(ours.integer, theirs.integer);
        }
    }
    m_set = other.m_set;
    m_present = other.m_present;
    m_changed = other.m_changed;
    m_replaced = other.m_replaced;
    std::swap(m_extras, other.m_extras);
}

void IRGObject::mergeContent(const IRGObject& other)
{
    for (int i = 0; i < m_table->fieldCount; ++i) {
        if (other.isFieldSet(i))
            mergeField(i, other);
    }
    if (other.isSet()) {
        m_present = true;
        m_changed = true;
    }
}

void IRGObject::mergeField(int field, const IRGObject& other)
{
    const Field& row = m_table->fields[field];
    if (row.list)
        row.listOperations->assign(listAt(field), other.listAt(field));
    else if (row.kind == FieldKind::Element)
        elementAt(field).mergeContent(other.elementAt(field));
    else
        ElementAccess::setValue(*this, field, ElementAccess::value(other, field));
}

bool IRGObject::isFieldSet(int field) const
{
    const Field& row = m_table->fields[field];
    if (!m_cells)
        return false;
    if (row.list)
        return itemCount(field) > 0;
    if (row.kind != FieldKind::Element)
        return ElementAccess::bit(*this, field);
    if (m_table->choice)
        return chosen() == field - m_table->firstElement();
    return m_cells[field].element && m_cells[field].element->isSet();
}

bool IRGObject::isSet() const
{
    if (m_present)
        return true;
    for (int i = 0; m_cells && i < m_table->fieldCount; ++i) {
        if (isFieldSet(i))
            return true;
    }
    return false;
}

bool IRGObject::isChangedWithin() const
{
    if (m_changed)
        return true;
    const auto differs = [](const IRGObject* child) {
        return child->m_replaced || child->m_changed ||
               (child->m_table->elementFields && child->isChangedWithin());
    };
    for (int i = 0; m_cells && i < m_table->fieldCount; ++i) {
        if (((m_table->elementFields >> i) & 1U) == 0)
            continue;
        const Field& row = m_table->fields[i];
        if (!row.list && m_cells[i].element && differs(m_cells[i].element))
            return true;
        for (int k = row.list ? itemCount(i) - 1 : -1; k >= 0; --k) {
            if (differs(row.listOperations->element(m_cells[i].list, k)))
                return true;
        }
    }
    return false;
}

int IRGObject::itemCount(int field) const
{
    const Field& row = m_table->fields[field];
    return row.list && m_cells && m_cells[field].list ? row.listOperations->count(m_cells[field].list) : 0;
}

// A choice is made by setting something in an alternative, of which the choice is not told. So the
// alternative that was last handed out for changing is remembered (its bit in m_set), all others but the
// valid one are emptied then, and the remembered one counts as soon as there is something in it.

int IRGObject::chosen() const
{
    int result = -1;
    const int first = m_table->firstElement();
    for (int i = first; m_cells && i < m_table->fieldCount; ++i) {
        if (!m_cells[i].element || !m_cells[i].element->isSet())
            continue;
        if (ElementAccess::bit(*this, i))
            return i - first;
        if (result < 0)
            result = i - first;
    }
    return result;
}

void IRGObject::handOutAlternative(int field)
{
    const int first = m_table->firstElement();
    const int current = chosen();
    for (int i = first; i < m_table->fieldCount; ++i) {
        if (i - first != current && m_cells[i].element)
            m_cells[i].element->resetContent();
        m_set &= ~(Q_UINT64_C(1) << i);
    }
    m_set |= Q_UINT64_C(1) << field;
}

} // namespace REPORTGENERATOR
