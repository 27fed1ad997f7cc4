#include "client/TradeCore.h"

TradeCore::TradeCore(const DataDirectory& directory, Storage storage, QObject* parent)
    : QObject(parent)
    , m_store(directory)
    , m_storage(storage)
{
}

RecordStore::LoadReport TradeCore::load()
{
    const RecordStore::LoadReport report
        = m_storage == Storage::File ? m_store.load(m_record) : m_store.read(m_record);
    m_stored = m_record;
    return report;
}

QString TradeCore::storeIfChanged()
{
    if (m_storage == Storage::None || m_record == m_stored)
        return QString();
    const QString failure = m_store.save(m_record);
    if (failure.isEmpty())
        m_stored = m_record;
    return failure;
}

QString TradeCore::replace(const OwnedRecord& record)
{
    QString failure = m_store.keepOld(m_record);
    if (failure.isEmpty())
        failure = m_store.save(record);
    if (failure.isEmpty())
        m_stored = m_record = record;
    return failure;
}

TradeParm* TradeCore::GetTradeParm() { return &m_record.get(); }

void TradeCore::SaveTradeParm()
{
    if (m_storage == Storage::File) {
        const QString failure = m_store.save(m_record);
        if (failure.isEmpty())
            m_stored = m_record;
        else
            Q_EMIT storingFailed(failure);
    }
    Q_EMIT committed();
}
