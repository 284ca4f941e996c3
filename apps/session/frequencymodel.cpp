#include "frequencymodel.h"

#include "jobsession.h"
#include "resourcereport.h"

#include <algorithm>
#include <isubsetting.h>
#include <utility>

namespace {
bool isSameShape(const QVector<Session::FrequencyModel::Item>& left,
                 const QVector<Session::FrequencyModel::Item>& right)
{
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](const auto& one, const auto& other) {
                          return one.subjob == other.subjob && one.kind == other.kind;
                      });
}
} // namespace

namespace Session {

FrequencyModel::FrequencyModel(JobSession* session, const JobComposer::Resources& resources, QObject* parent)
    : QAbstractListModel(parent)
    , m_session(session)
    , m_resources(resources)
    , m_refresh([this] { refresh(); }, this)
{
    connect(session, &JobSession::jobReplaced, this, &FrequencyModel::changeAll);
    connect(session, &JobSession::structureChanged, this, &FrequencyModel::changeAll);
    connect(session, &JobSession::settingChanged, this, &FrequencyModel::changeSetting);
}

void FrequencyModel::setWatched(bool isWatched)
{
    m_isWatched = isWatched;
    refreshSoon();
}

int FrequencyModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_items.size();
}

QVariant FrequencyModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return QVariant();
    const Item& item = m_items.at(index.row());
    const QString subjob = subjobName(item.subjob);
    if (role == Qt::ToolTipRole)
        return toolTip(item);
    if (role != Qt::DisplayRole && role != Qt::AccessibleTextRole)
        return QVariant();
    if (item.kind == UNTOLD)
        return tr("%1: %2").arg(subjob, item.sentence);
    if (item.kind == COVERED)
        return tr("%1: the receiver covers %2").arg(subjob, item.range.toText());
    return item.range.name.isEmpty()
               ? tr("%1: %2, %3").arg(subjob, item.range.source, item.range.toText())
               : tr("%1: %2, %3, %4").arg(subjob, item.range.source, item.range.name, item.range.toText());
}

void FrequencyModel::changeSetting(JEDVEPLUGIN::ISubSetting* setting)
{
    while (setting && setting->parent())
        setting = setting->parent();
    m_changed.insert(m_session->topLevelIndex(setting));
    refreshSoon();
}

void FrequencyModel::changeAll()
{
    m_isAllChanged = true;
    refreshSoon();
}

void FrequencyModel::refreshSoon()
{
    const bool isDue = m_isWatched && (m_isAllChanged || !m_changed.isEmpty());
    if (isDue && m_isAllChanged)
        m_refresh.requestAtOnce();
    else if (isDue)
        m_refresh.request();
}

void FrequencyModel::refresh()
{
    const bool isAll = std::exchange(m_isAllChanged, false);
    const QSet<int> changed = std::exchange(m_changed, {});
    QVector<Item> items;
    QStringList names;
    for (int subjob = 0; subjob < m_session->topLevelCount(); ++subjob) {
        const JobSession::TopLevel& top = m_session->topLevel(subjob);
        names.append(top.setting ? top.setting->getDisplayName() : top.subjob.GetName());
        if (isAll || changed.contains(subjob)) {
            items += itemsOf(subjob);
            continue;
        }
        const auto isBefore = [](const Item& item, int number) { return item.subjob < number; };
        auto known = std::lower_bound(m_items.cbegin(), m_items.cend(), subjob, isBefore);
        for (; known != m_items.cend() && known->subjob == subjob; ++known)
            items.append(*known);
    }
    const bool isReset = names.size() != m_names.size() || !isSameShape(items, m_items);
    if (isReset)
        beginResetModel();
    m_items = items;
    m_names = names;
    if (isReset)
        endResetModel();
    else if (!m_items.isEmpty())
        emit dataChanged(index(0), index(m_items.size() - 1));
}

QVector<FrequencyModel::Item> FrequencyModel::itemsOf(int subjob) const
{
    JobXml::Subjob written;
    m_session->composeSubjob(subjob, &written, nullptr);
    FrequencyUse used = usedFrequencies(written);
    std::stable_sort(used.ranges.begin(), used.ranges.end(),
                     [](const auto& left, const auto& right) { return left.from < right.from; });
    const JEDVEPLUGIN::ResourceDescription* const receiver = receiverOf(written, m_resources);
    FrequencyUse covered;
    if (receiver)
        covered = coveredFrequencies(*receiver);
    else
        covered.untold.append(tr("The installation does not offer the receiver"));
    QVector<Item> items;
    for (const FrequencyRange& range : qAsConst(used.ranges))
        items.append({subjob, USED, range, QString()});
    for (const FrequencyRange& range : qAsConst(covered.ranges))
        items.append({subjob, COVERED, range, QString()});
    for (const QString& sentence : used.untold + covered.untold)
        items.append({subjob, UNTOLD, FrequencyRange(), sentence});
    return items;
}

QString FrequencyModel::toolTip(const Item& item) const
{
    if (item.kind == UNTOLD)
        return item.sentence;
    const FrequencyRange& range = item.range;
    QStringList lines;
    lines.append(item.kind == COVERED ? tr("%1: covered by the receiver").arg(subjobName(item.subjob))
                                      : tr("%1: %2").arg(subjobName(item.subjob), range.source));
    if (!range.name.isEmpty())
        lines.append(range.name);
    lines.append(range.toText());
    lines.append(tr("from %1 Hz to %2 Hz, %3 wide")
                     .arg(QString::number(range.from), QString::number(range.to),
                          frequencyText(range.to - range.from)));
    return lines.join(QLatin1Char('\n'));
}

} // namespace Session
