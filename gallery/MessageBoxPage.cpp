#include "gallery/GalleryParts.h"
#include "gallery/PageBuilder.h"
#include "gallery/Pages.h"

namespace GalleryPages {
namespace {

struct BoxRow {
    QString name;
    QMessageBox::Icon icon;
    QString text;
    QMessageBox::StandardButtons buttons;
    int timeoutSeconds = -1;
    bool wide = false; ///< takes a row for itself
};

QVector<BoxRow> boxRows()
{
    const QString twentyLines = [] {
        QStringList lines;
        for (int line = 1; line <= 20; ++line)
            lines += GalleryText::tr("第 %1 行：委托已报，等待成交").arg(line);
        return lines.join(QLatin1Char('\n'));
    }();
    return {
        {GalleryText::tr("信息"), QMessageBox::Information, GalleryText::tr("参数已保存。"),
         QMessageBox::Ok},
        {GalleryText::tr("警告"), QMessageBox::Warning,
         GalleryText::tr("行情连接已断开，正在重新连接。"),
         QMessageBox::Retry | QMessageBox::Cancel},
        {GalleryText::tr("错误"), QMessageBox::Critical,
         GalleryText::tr("委托被拒绝：可用资金不足。"),
         QMessageBox::Abort | QMessageBox::Retry | QMessageBox::Ignore},
        {GalleryText::tr("询问"), QMessageBox::Question,
         GalleryText::tr("界面设置已更改，是否立即重新启动？"), QMessageBox::Yes | QMessageBox::No},
        {GalleryText::tr("没有图标"), QMessageBox::NoIcon,
         GalleryText::tr("没有图标的消息更窄、更矮。"), QMessageBox::Ok | QMessageBox::Cancel},
        {GalleryText::tr("倒计时"), QMessageBox::Information, GalleryText::tr("窗口将自动关闭。"),
         QMessageBox::Ok, 9},
        {GalleryText::tr("没有按钮"), QMessageBox::Information,
         GalleryText::tr("正在退出，请稍候。"), QMessageBox::NoButton},
        {GalleryText::tr("很长的单词"), QMessageBox::Warning,
         QStringLiteral("/Users/trader/Library/Application_Support/com.kivotrade.tradeclient/"
                        "config/system_settings_backup_20240102030405.ini"),
         QMessageBox::Ok},
        {GalleryText::tr("六个按钮"), QMessageBox::Question,
         GalleryText::tr("保存对交易参数的修改？"),
         QMessageBox::Save | QMessageBox::SaveAll | QMessageBox::Discard | QMessageBox::Cancel
             | QMessageBox::Help | QMessageBox::RestoreDefaults,
         -1, true},
        {GalleryText::tr("长文字"), QMessageBox::Information,
         GalleryText::tr(
             "科创板股票的单笔申报数量不得少于 200 股，超过 200 股的部分可以以 1 股为单位"
             "递增；市价申报的单笔数量不得超过 5 万股，限价申报的单笔数量不得超过 "
             "10 万股。卖出时余额不足 200 股的部分，应当一次性申报卖出。"),
         QMessageBox::Ok, -1, true},
        {GalleryText::tr("二十行文字"), QMessageBox::Information, twentyLines,
         QMessageBox::Yes | QMessageBox::YesToAll | QMessageBox::No | QMessageBox::NoToAll, -1,
         true},
    };
}

template <typename Box> std::unique_ptr<Box> newBox(const BoxRow& row, QWidget* parent)
{
    return std::make_unique<Box>(parent, row.icon, row.text, GalleryText::tr("交易客户端"),
                                 row.buttons, row.timeoutSeconds);
}

} // namespace

QWidget* messageBoxes()
{
    constexpr int columns = 2;
    PageBuilder page(GalleryText::tr("消息框"), GalleryText::tr("单击图片打开可操作的消息框。"));
    page.section(GalleryText::tr("图标、按钮与文字"));
    QGridLayout* const table = page.table();
    int place = 0;
    for (const BoxRow& row : boxRows()) {
        auto box = newBox<HeldMessageBox>(row, nullptr);
        box->settle();
        auto* const preview = new WindowPreview(std::move(box));
        preview->setAction([row, preview] {
            auto opened = newBox<CMessageBox>(row, preview->window());
            opened->setAttribute(Qt::WA_DeleteOnClose);
            opened.release()->open();
        });
        auto* const shelf = newShelf();
        put(shelf, preview, row.name);
        table->addLayout(shelf, place / columns, place % columns, 1, row.wide ? columns : 1,
                         Qt::AlignLeft | Qt::AlignTop);
        place += row.wide ? columns : 1;
    }
    return page.finish();
}

} // namespace GalleryPages
