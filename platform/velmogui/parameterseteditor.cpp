#include <velmogui/parameterseteditor.h>
#include <velmogui/valuecontrol.h>

#include <jobxml/settings.h>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QVBoxLayout>
#include <reportlayer/fieldaccess.h>
#include <values/node.h>

using REPORTGENERATOR::ElementTable;
using REPORTGENERATOR::Field;

namespace VelmoGui {

namespace {
enum Column { COLUMN_LABEL, COLUMN_CONTROL, COLUMN_NOTE };

QString pathOfGroup(const QString& field)
{
    return field.section(QLatin1Char('.'), 0, -2);
}

const Field* fieldOf(const ElementTable* table, const QString& path)
{
    return table ? REPORTGENERATOR::findField(*table, path) : nullptr;
}

QLabel* newFaultLabel(const ValueControl* control, QWidget* parent)
{
    auto* const label = new QLabel(parent);
    label->setWordWrap(true);
    label->setTextFormat(Qt::PlainText);
    label->hide();
    // A colour that can be told from the text on light and on dark windows.
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, palette.color(QPalette::Window).lightness() > 128
                                               ? QColor(176, 0, 32)
                                               : QColor(255, 138, 128));
    label->setPalette(palette);
    QObject::connect(control, &ValueControl::faultChanged, label, [label](const QString& fault) {
        label->setText(fault);
        label->setVisible(!fault.isEmpty());
    });
    return label;
}
} // namespace

ParameterSetEditor::ParameterSetEditor(const QString& name, Node* values, QWidget* parent)
    : QWidget(parent)
    , m_name(name)
{
    auto* const layout = new QVBoxLayout(this);
    const REPORTGENERATOR::ParameterSet* const set = JobXml::findParameterSet(name);
    for (ValueBase* value : values->GetValues())
        addValue(value, set ? set->table : nullptr);
    alignColumns();
    layout->addStretch();
}

ValueControl* ParameterSetEditor::control(const QString& field) const
{
    return m_controls.value(field);
}

void ParameterSetEditor::setReadOnly(bool readOnly)
{
    for (ValueControl* control : qAsConst(m_controls))
        control->setReadOnly(readOnly);
}

void ParameterSetEditor::setMark(const QString& field, const QString& mark, const QString& toolTip)
{
    QLabel* const label = m_marks.value(field);
    if (!label)
        return;
    label->setText(mark);
    label->setToolTip(toolTip);
    label->setVisible(!mark.isEmpty());
    control(field)->setNote(toolTip);
}

void ParameterSetEditor::addValue(ValueBase* value, const ElementTable* table)
{
    const QString id = value->GetId();
    const Field* const field = fieldOf(table, id);
    QGridLayout* const grid = groupOf(pathOfGroup(id), table);
    QWidget* const parent = grid->parentWidget();
    const QString text = field ? field->label() : id;
    auto* const label = new QLabel(tr("%1:").arg(text), parent);
    auto* const control = new ValueControl(value, field, text, parent);
    control->widget()->setObjectName(QStringLiteral("%1/%2").arg(m_name, id));
    label->setToolTip(field ? field->help() : QString());
    label->setWhatsThis(label->toolTip());
    label->setBuddy(control->widget());
    auto* const mark = new QLabel(parent);
    mark->hide();
    const int row = grid->rowCount();
    const bool isTall = control->widget()->sizeHint().height() > 2 * label->sizeHint().height();
    grid->addWidget(label, row, COLUMN_LABEL, isTall ? Qt::AlignTop : Qt::AlignVCenter);
    grid->addWidget(control->widget(), row, COLUMN_CONTROL);
    grid->addWidget(mark, row, COLUMN_NOTE);
    grid->addWidget(newFaultLabel(control, parent), row + 1, COLUMN_CONTROL);
    m_controls.insert(id, control);
    m_marks.insert(id, mark);
}

// The controls of all groups stand in one column.
void ParameterSetEditor::alignColumns()
{
    int width = 0;
    for (const QLabel* label : findChildren<QLabel*>()) {
        if (label->buddy())
            width = qMax(width, label->sizeHint().width());
    }
    for (QGridLayout* grid : qAsConst(m_groups))
        grid->setColumnMinimumWidth(COLUMN_LABEL, width);
}

// The grid in which the fields of a group stand; groups come in the order of their first field.
QGridLayout* ParameterSetEditor::groupOf(const QString& path, const ElementTable* table)
{
    if (QGridLayout* const present = m_groups.value(path))
        return present;
    auto* const box = new QGroupBox(this);
    if (path.isEmpty()) {
        box->setFlat(true);
    } else {
        QStringList titles;
        for (int level = 0; level <= path.count(QLatin1Char('.')); ++level) {
            const QString part = path.section(QLatin1Char('.'), 0, level);
            const Field* const field = fieldOf(table, part);
            titles.append(field ? field->label() : part);
        }
        box->setTitle(titles.join(QStringLiteral(" \u2013 ")));
    }
    auto* const grid = new QGridLayout(box);
    grid->setColumnStretch(COLUMN_CONTROL, 1);
    static_cast<QVBoxLayout*>(layout())->addWidget(box);
    m_groups.insert(path, grid);
    return grid;
}

} // namespace VelmoGui
