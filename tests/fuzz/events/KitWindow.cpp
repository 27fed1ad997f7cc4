#include "fuzz/events/KitWindow.h"

#include "fuzz/FuzzInput.h"
#include "tradeConfig/CaptionBar.h"
#include "tradeConfig/ImageButton.h"
#include "tradeConfig/MarkShade.h"
#include "tradeConfig/MessageBox.h"
#include "tradeConfig/NavWidget.h"
#include "tradeConfig/SwitchEx.h"
#include "tradeConfig/TableLineEdit.h"
#include "tradeConfig/TipLabel.h"
#include "tradeConfig/WrapLabel.h"
#include "tradeConfig/skin/SkinKeys.h"

#include <QGridLayout>
#include <QLineEdit>

#include <memory>

namespace {

constexpr QMessageBox::StandardButton everyButton[]
    = {QMessageBox::Ok,     QMessageBox::Save,           QMessageBox::SaveAll, QMessageBox::Open,
       QMessageBox::Yes,    QMessageBox::YesToAll,       QMessageBox::No,      QMessageBox::NoToAll,
       QMessageBox::Abort,  QMessageBox::Retry,          QMessageBox::Ignore,  QMessageBox::Close,
       QMessageBox::Cancel, QMessageBox::Discard,        QMessageBox::Help,    QMessageBox::Apply,
       QMessageBox::Reset,  QMessageBox::RestoreDefaults};

QString someImage(FuzzInput& input)
{
    const int choice = input.below(int(std::size(SkinKeys::images)) + 1);
    return choice < int(std::size(SkinKeys::images)) ? QLatin1String(SkinKeys::images[choice].name)
                                                     : QLatin1String("no such image");
}

QString someLabel(FuzzInput& input)
{
    constexpr const char* labels[] = {"买入", "卖出", "A", "", "Settings", "一二三四五六七八九十"};
    const int choice = input.below(int(std::size(labels)) + 1);
    return QString::fromUtf8(choice < int(std::size(labels)) ? QByteArray(labels[choice])
                                                             : input.bytes(20));
}

} // namespace

KitWindow::KitWindow()
    : QWidget(nullptr,
              Qt::Window | Qt::FramelessWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint
                  | Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint)
    , m_caption(new CCaptionBar(this))
    , m_list(new CNavWidget(this))
    , m_cell(new CTableLineEdit(0, this))
    , m_marked(new QLineEdit(this))
    , m_tip(new CTipLabel(QStringLiteral("买入"), true, this))
    , m_wrapped(new CWrapLabel(this))
{
    for (const char* const text : {"一", "二", "三"})
        m_menu.addAction(QString::fromUtf8(text));
    auto* const grid = new QGridLayout(this);
    grid->addWidget(m_caption, 0, 0, 1, 4);
    grid->addWidget(m_list, 1, 0, 9, 1);
    m_list->SetBtnList({QStringLiteral("买入"), QStringLiteral("卖出"), QStringLiteral("撤单")});
    for (int mode = CSwitchEx::ModeSwitch; mode <= CSwitchEx::ModeNavButton; ++mode) {
        for (const Qt::Orientation direction : {Qt::Horizontal, Qt::Vertical}) {
            auto* const bar = new CSwitchEx(this, direction, QMargins(2, 1, 2, 1));
            bar->changeMode(CSwitchEx::SwitchMode(mode));
            fill(*bar);
            m_bars << bar;
            if (direction == Qt::Horizontal)
                grid->addWidget(bar, mode, 1, 1, 2);
            else
                grid->addWidget(bar, 1, 3 + mode, 9, 1);
        }
    }
    for (int column = 1; column < 3; ++column) {
        m_buttons << new CImageButton(this);
        grid->addWidget(m_buttons.last(), 8, column);
    }
    m_buttons.first()->setSingleImage(QStringLiteral("PanelClose"), 4, true, false);
    m_buttons.last()->setText(QStringLiteral("确定"));
    grid->addWidget(m_cell, 9, 1);
    grid->addWidget(m_marked, 9, 2);
    grid->addWidget(m_wrapped, 10, 0, 1, 3);
    resize(900, 600);
}

KitWindow::~KitWindow()
{
    for (CSwitchEx* const bar : qAsConst(m_bars))
        bar->ClearAll();
}

void KitWindow::fill(CSwitchEx& bar)
{
    bar.AddNormalSwitch(QStringLiteral("买入"), [this] { m_wrapped->setText(windowTitle()); });
    bar.AddNormalSwitch(QStringLiteral("卖出"), {}, false, &m_menu);
    bar.AddSeparator(2);
    bar.AddImageSwitch(QStringLiteral("撤单"), QStringLiteral("logo"),
                       QStringLiteral("PanelClose"));
    bar.AddNormalSwitch(QStringLiteral("查询"), {}, true);
}

void KitWindow::operate(FuzzInput& input)
{
    switch (input.below(10)) {
    case 0:
        m_list->SetBtnList(
            QString::fromUtf8(input.bytes(30)).split(QLatin1Char('a'), Qt::SkipEmptyParts));
        m_list->update();
        break;
    case 1:
        operateButton(input);
        break;
    case 2:
        operateCaption(input);
        break;
    case 3:
        m_tip->SetMessageLabel(someLabel(input));
        m_tip->show();
        m_tip->SetAutoHide();
        break;
    case 4:
        m_wrapped->setText(someLabel(input).repeated(1 + input.below(40)));
        break;
    case 5:
        MarkShade::replaceSheet(
            *m_marked, input.flag() ? QStringLiteral("color:red") : QStringLiteral("color:green"));
        break;
    default:
        operateBar(input);
    }
}

void KitWindow::operateBar(FuzzInput& input)
{
    constexpr int mostItems = 12;
    CSwitchEx& bar = *m_bars.at(input.below(m_bars.size()));
    const QVector<SwitchItem*> items = bar.items + bar.endItems;
    SwitchItem* const item = items.isEmpty() ? nullptr : items.at(input.below(items.size()));
    QMenu* const menu = input.below(3) ? nullptr : &m_menu;
    const QString known = item ? item->label : QString();
    switch (input.below(13)) {
    case 0:
        bar.changeMode(CSwitchEx::SwitchMode(1 + input.below(7)));
        break;
    case 1:
        bar.setItemSize(input.below(200));
        break;
    case 2:
        bar.setOrientation(input.flag() ? Qt::Horizontal : Qt::Vertical);
        break;
    case 3:
        bar.setBackgroundColorEnable(input.flag());
        break;
    case 4:
        bar.SetPadding(QMarginsF(input.below(9), input.below(9), input.below(9), input.below(9)));
        break;
    case 5:
        if (items.size() < mostItems)
            bar.AddNormalSwitch(someLabel(input), {}, input.flag(), menu);
        break;
    case 6:
        if (items.size() < mostItems)
            bar.AddImageSwitch(someLabel(input), someImage(input), someImage(input), {},
                               input.flag());
        break;
    case 7:
        if (items.size() < mostItems)
            bar.AddSeparator(input.below(9), input.flag());
        break;
    case 8:
        bar.ModifySwitch(known, someLabel(input), {});
        break;
    case 9:
        bar.ModifyImageSwitch(known, someLabel(input), someImage(input), someImage(input), {});
        break;
    case 10:
        bar.SetItemLabel(item, someLabel(input));
        break;
    case 11:
        bar.SetCurSel(item, input.flag());
        break;
    default:
        bar.ClearAll();
        if (input.below(4))
            fill(bar);
    }
    MUST(bar.GetMinimumSize() >= 0 && bar.GetMaximumSize() >= 0);
}

void KitWindow::operateButton(FuzzInput& input)
{
    CImageButton& button = *m_buttons.at(input.below(m_buttons.size()));
    switch (input.below(4)) {
    case 0:
        button.setSingleImage(someImage(input), 1 + input.below(4), input.flag(), input.flag());
        break;
    case 1:
        button.setImage(someImage(input), input.flag() ? someImage(input) : QString(),
                        input.flag() ? someImage(input) : QString(), QString());
        break;
    case 2:
        button.setTextIndent(input.below(60) - 20);
        break;
    default:
        button.setShowText(input.flag());
        button.setEnabled(input.below(4) != 0);
    }
}

void KitWindow::operateCaption(FuzzInput& input)
{
    switch (input.below(4)) {
    case 0:
        m_caption->setFrameEnabled(input.flag());
        break;
    case 1:
        m_caption->setTitleEnabled(input.flag());
        break;
    case 2:
        m_caption->setTitle(someLabel(input).toUtf8().constData());
        break;
    default:
        setWindowTitle(someLabel(input));
    }
}

void KitWindow::ask(FuzzInput& input)
{
    const auto icon = QMessageBox::Icon(input.below(5));
    QWidget* const parent = input.below(4) ? this : nullptr;
    const QString text = someLabel(input);
    switch (input.below(3)) {
    case 0:
        CMessageBox::question(parent, icon, text);
        break;
    case 1:
        CMessageBox::timeout(parent, icon, text, input.below(4));
        break;
    default: {
        QMessageBox::StandardButtons buttons;
        for (int left = input.below(7); left > 0; --left)
            buttons |= everyButton[input.below(int(std::size(everyButton)))];
        CMessageBox::message(parent, icon, text, someLabel(input), buttons);
    }
    }
}
