#include <velmogui/parameterseteditor.h>
#include <velmogui/valuecontrol.h>

#include <jobxml/settings.h>
#include <jobxml/valuetext.h>
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

// Help, range and unit of a value.
QString helpOf(const ValueBase& value, const Field* field)
{
    QStringList lines;
    if (field && !field->help().isEmpty())
        lines.append(field->help());
    const QString range = JobXml::readableRange(value, field);
    if (!range.isEmpty())
        lines.append(range);
    return lines.join(QLatin1Char('\n'));
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
    layout->addStretch();
}

ValueControl* ParameterSetEditor::control(const QString& field) const
{
    return m_controls.value(field);
}

void ParameterSetEditor::setMark(const QString& field, const QString& mark, const QString& toolTip)
{
    QLabel* const label = m_marks.value(field);
    if (!label)
        return;
    label->setText(mark);
    label->setToolTip(toolTip);
    label->setVisible(!mark.isEmpty());
}

void ParameterSetEditor::addValue(ValueBase* value, const ElementTable* table)
{
    const QString id = value->GetId();
    const Field* const field = fieldOf(table, id);
    QGridLayout* const grid = groupOf(pathOfGroup(id), table);
    QWidget* const parent = grid->parentWidget();
    const QString text = field ? field->label() : id;
    const QString help = helpOf(*value, field);
    auto* const label = new QLabel(tr("%1:").arg(text), parent);
    auto* const control = new ValueControl(value, field, text, parent);
    control->widget()->setObjectName(QStringLiteral("%1/%2").arg(m_name, id));
    for (QWidget* widget : {static_cast<QWidget*>(label), control->widget()}) {
        widget->setToolTip(help);
        widget->setWhatsThis(help);
    }
    label->setBuddy(control->widget());
    auto* const mark = new QLabel(parent);
    mark->hide();
    const int row = grid->rowCount();
    grid->addWidget(label, row, COLUMN_LABEL, Qt::AlignTop);
    grid->addWidget(control->widget(), row, COLUMN_CONTROL);
    grid->addWidget(mark, row, COLUMN_NOTE);
    grid->addWidget(newFaultLabel(control, parent), row + 1, COLUMN_CONTROL);
    m_controls.insert(id, control);
    m_marks.insert(id, mark);
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
    grid->setColumnMinimumWidth(COLUMN_LABEL, fontMetrics().averageCharWidth() * 22);
    grid->setColumnStretch(COLUMN_CONTROL, 1);
    static_cast<QVBoxLayout*>(layout())->addWidget(box);
    m_groups.insert(path, grid);
    return grid;
}

} // namespace VelmoGui
