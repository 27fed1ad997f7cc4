#pragma once

#include "client/RecordStore.h"
#include "tradeConfig/ITrade.h"

#include <QObject>

/**
 * The trading core as far as this client has one: it owns the record and stores it whenever
 * the settings module says that it changed.
 */
class TradeCore : public QObject, public KivoTrade::ITrade {
    Q_OBJECT

public:
    enum class Storage {
        File,
        None ///< neither loading nor a commit changes anything outside this process
    };

    explicit TradeCore(const DataDirectory& directory, Storage storage = Storage::File,
                       QObject* parent = nullptr);

    /// Reads the record from its file; call before the first use.
    RecordStore::LoadReport load();

    const OwnedRecord& record() const { return m_record; }
    RecordStore& store() { return m_store; }

    /// Stores the record if it differs from what was last read or stored: some edits reach the
    /// record without a commit. Returns an empty text, or why storing failed.
    QString storeIfChanged();

    /// Puts @p record in the place of the one there is, which is kept aside, and stores it. Returns
    /// an empty text, or why nothing was changed.
    QString replace(const OwnedRecord& record);

    void Placeholder0() override { }
    void Placeholder1() override { }
    void Placeholder2() override { }
    void Placeholder3() override { }
    void Placeholder4() override { }
    void Placeholder5() override { }
    void Placeholder6() override { }
    void Placeholder7() override { }
    void Placeholder8() override { }
    void Placeholder9() override { }
    void Placeholder10() override { }
    void Placeholder11() override { }
    void Placeholder12() override { }
    void Placeholder13() override { }
    TradeParm* GetTradeParm() override;
    void SaveTradeParm() override;

Q_SIGNALS:
    /// After every commit, whether storing worked or not.
    void committed();
    /// A commit could not be stored; the record in memory holds the new values.
    void storingFailed(const QString& reason);

private:
    RecordStore m_store;
    Storage m_storage;
    OwnedRecord m_record;
    OwnedRecord m_stored;
};
