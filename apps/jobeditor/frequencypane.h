#pragma once

#include <QWidget>

namespace JEDVEPLUGIN {
class ISubSetting;
}
namespace Session {
class FrequencyModel;
class JobSession;
} // namespace Session

/// The frequencies of the job along an axis, with buttons for the axis above. A bar that is chosen leads to its field.
class FrequencyPane : public QWidget
{
    Q_OBJECT
public:
    explicit FrequencyPane(Session::JobSession* session, QWidget* parent = nullptr);

signals:
    void fieldChosen(JEDVEPLUGIN::ISubSetting* setting, const QString& parameterSet, const QString& field);
    /// A bar that stands for no field of a setting was chosen. \param subjob  position in the job
    void subjobChosen(int subjob);

private:
    void choose(const QModelIndex& index);

    Session::JobSession* m_session; // Not owned.
    Session::FrequencyModel* m_model;
};
