#include "client/RecordActions.h"

#include "client/RecordFile.h"
#include "client/TradeCore.h"

#include <QAction>
#include <QDir>
#include <QFileDialog>
#include <QMenu>
#include <QMessageBox>

namespace {

QString suffix() { return QStringLiteral("json"); }

} // namespace

RecordActions::RecordActions(TradeCore& core, QWidget* window)
    : QObject(window)
    , m_core(core)
    , m_window(window)
    , m_change(core)
    , m_export(add("action_export", tr("导出交易参数(&E)…"), &RecordActions::exportRecord))
    , m_import(add("action_import", tr("导入交易参数(&I)…"), &RecordActions::importRecord))
    , m_restore(add("action_restore", tr("恢复默认值(&D)…"), &RecordActions::restoreDefaults))
    , m_undo(add("action_undo", tr("撤消(&U)"), &RecordActions::undo))
{
    m_undo->setIconText(tr("撤消"));
    m_undo->setEnabled(false);
}

QAction* RecordActions::add(const char* name, const QString& text, void (RecordActions::*run)())
{
    auto* const action = new QAction(text, this);
    action->setObjectName(QLatin1String(name));
    connect(action, &QAction::triggered, this, run);
    return action;
}

void RecordActions::fill(QMenu* menu) const
{
    menu->addActions({m_export, m_import, m_restore});
    menu->addSeparator();
    menu->addAction(m_undo);
}

void RecordActions::setRefused(bool refused)
{
    m_refused = refused;
    m_import->setEnabled(!refused);
    m_restore->setEnabled(!refused);
    noteChange();
}

void RecordActions::noteChange()
{
    m_undo->setEnabled(!m_refused && m_change.canUndo());
    if (!m_change.canUndo())
        m_undo->setText(tr("撤消(&U)"));
}

void RecordActions::exportRecord()
{
    const QString filter = tr("交易参数 (*.json)");
    QFileDialog dialog(m_window, tr("导出交易参数"), QDir::homePath(), filter);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(suffix());
    dialog.selectFile(QStringLiteral("trade_parameters.json"));
    if (dialog.exec() != QDialog::Accepted)
        return;
    const QString file = dialog.selectedFiles().value(0);
    if (QFileInfo(file) == QFileInfo(m_core.store().fileName()))
        tell(tr("%1 是客户端自己的文件，请选择其他文件。").arg(file));
    else
        tell(RecordFile::write(file, m_core.record()));
}

void RecordActions::importRecord()
{
    if (m_refused)
        return;
    const QString file = QFileDialog::getOpenFileName(
        m_window, tr("导入交易参数"), QDir::homePath(), tr("交易参数 (*.json);;所有文件 (*)"));
    if (file.isEmpty())
        return;
    OwnedRecord record;
    const QStringList problems = RecordChange::read(file, record);
    if (!problems.isEmpty()) {
        tell(tr("%1 无法导入，交易参数未改动：\n%2").arg(file, problems.join(QLatin1Char('\n'))));
        return;
    }
    if (isAgreedTo(
            tr("用 %1 中的交易参数替换当前的交易参数吗？\n\n当前的交易参数会另存一份。").arg(file))
        && replace(record, tr("撤消导入(&U)")))
        Q_EMIT imported();
}

void RecordActions::restoreDefaults()
{
    if (!m_refused && isAgreedTo(tr("将所有交易参数恢复为默认值吗？\n\n当前的交易参数会另存一份。"))
        && replace(OwnedRecord(), tr("撤消恢复默认值(&U)")))
        Q_EMIT restored();
}

void RecordActions::undo()
{
    if (m_refused || !m_change.canUndo())
        return;
    const QString failure = m_change.undo();
    noteChange();
    tell(failure);
    if (failure.isEmpty())
        Q_EMIT undone();
}

bool RecordActions::isAgreedTo(const QString& question) const
{
    return QMessageBox::question(m_window, m_window->windowTitle(), question,
                                 QMessageBox::Yes | QMessageBox::No, QMessageBox::No)
        == QMessageBox::Yes;
}

bool RecordActions::replace(const OwnedRecord& record, const QString& undoText)
{
    const QString failure = m_change.replace(record);
    tell(failure);
    if (!failure.isEmpty())
        return false;
    m_undo->setText(undoText);
    noteChange();
    return true;
}

void RecordActions::tell(const QString& failure) const
{
    if (!failure.isEmpty())
        QMessageBox::critical(m_window, m_window->windowTitle(), failure);
}
