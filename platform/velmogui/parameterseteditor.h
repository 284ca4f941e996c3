#pragma once

#include <velmogui/velmogui_export.h>

#include <QHash>
#include <QStringList>
#include <QWidget>

class Node;
class QGridLayout;
class QLabel;
class ValueBase;

namespace REPORTGENERATOR {
struct ElementTable;
struct Field;
} // namespace REPORTGENERATOR

namespace VelmoGui {

class ValueControl;

/// The editor of a parameter set: a labelled control for each of its values, in groups as the set has them, with units
/// and help out of the set's field table. A control has the object name "SET/FIELD" ("ScanSettings/Range.Detail.Mode").
/// Return or leaving a field takes the text, Escape brings back the value. GUI thread only.
class VELMOGUI_EXPORT ParameterSetEditor : public QWidget
{
    Q_OBJECT
public:
    /// \param name    of the parameter set; values without a field of that set are shown by their ids
    /// \param values  their node; not owned, may go before the editor, whose controls are disabled then
    ParameterSetEditor(const QString& name, Node* values, QWidget* parent = nullptr);

    /// The name of the parameter set.
    const QString& name() const { return m_name; }
    /// The paths of the fields that have a control, in no order.
    QStringList fields() const { return m_controls.keys(); }
    /// The control of a value, by the path of its field; null if there is none.
    ValueControl* control(const QString& field) const;
    /// Whether its values can only be looked at; at first they can be changed.
    void setReadOnly(bool readOnly);
    /// A short text beside a control that says where its value comes from; empty takes it away. The tool tip is the
    /// control's, too.
    void setMark(const QString& field, const QString& mark, const QString& toolTip);

private:
    void addValue(ValueBase* value, const REPORTGENERATOR::ElementTable* table);
    void alignColumns();
    QGridLayout* groupOf(const QString& path, const REPORTGENERATOR::ElementTable* table);

    QString m_name;
    QHash<QString, ValueControl*> m_controls; // By field. Qt owns them.
    QHash<QString, QGridLayout*> m_groups;    // By path of the group. Qt owns them.
    QHash<QString, QLabel*> m_marks;          // By field. Qt owns them.
};

} // namespace VelmoGui
