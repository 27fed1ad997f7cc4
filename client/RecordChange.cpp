#include "client/RecordChange.h"

#include "client/RecordFields.h"
#include "client/RecordFile.h"
#include "client/TradeCore.h"

#include <QJsonDocument>

#include <algorithm>

RecordChange::RecordChange(TradeCore& core)
    : m_core(core)
{
}

QStringList RecordChange::read(const QString& file, OwnedRecord& record)
{
    const RecordFile::Content content = RecordFile::read(file, record);
    if (!content.problems.isEmpty())
        return content.problems;
    // An object of something else would give nothing but defaults.
    const QJsonObject object = QJsonDocument::fromJson(content.bytes).object();
    const QVector<RecordFields::Field>& fields = RecordFields::all();
    const bool hasAny
        = std::any_of(fields.begin(), fields.end(), [&object](const RecordFields::Field& field) {
              return object.contains(QLatin1String(field.name));
          });
    return hasAny ? QStringList() : QStringList{tr("文件中没有任何交易参数")};
}

QString RecordChange::replace(const OwnedRecord& record)
{
    const OwnedRecord before = m_core.record();
    const QString failure = m_core.replace(record);
    if (failure.isEmpty()) {
        m_before = before;
        m_after = record;
        m_done = true;
    }
    return failure;
}

QString RecordChange::undo()
{
    if (!canUndo())
        return QString();
    const QString failure = m_core.replace(m_before);
    m_done = !failure.isEmpty();
    return failure;
}

bool RecordChange::canUndo() const { return m_done && m_core.record() == m_after; }
