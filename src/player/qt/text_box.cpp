#include "player/qt/text_box.h"

#include <QTextOption>

#include "player/qt/colours.h"

namespace qor::player {

TextBox::TextBox(std::size_t index, QWidget* parent, std::function<void(std::size_t, std::string)> edited,
                 std::function<void()> entered)
    : QTextEdit(parent), index_(index), edited_(std::move(edited)), entered_(std::move(entered))
{
    setAcceptRichText(false);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFrameShape(QFrame::Box);
    connect(this, &QTextEdit::textChanged, this, [this] {
        if (setting_)
            return;
        QString text = toPlainText();
        text.replace('\n', QStringLiteral("\r\n"));
        edited_(index_, text.toStdString());
    });
}

void TextBox::present(const TextScene& s, double scale)
{
    const QString text = QString::fromStdString(s.text).replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    QString current = toPlainText();
    if (current != text) {
        setting_ = true;
        setPlainText(text);
        setting_ = false;
    }
    QFont font(QString::fromStdString(s.fontName));
    if (s.fontSize > 0 && s.fontSize < 1000)
        font.setPointSizeF(s.fontSize * scale);
    else if (scale != 1 && font.pointSizeF() > 0)
        font.setPointSizeF(font.pointSizeF() * scale);
    font.setBold(s.fontBold);
    font.setItalic(s.fontItalic);
    font.setUnderline(s.fontUnderline);
    font.setStrikeOut(s.fontStrikethru);
    setFont(font);
    QPalette palette = this->palette();
    palette.setColor(QPalette::Base, toQColor(s.backColor));
    palette.setColor(QPalette::Text, toQColor(s.foreColor));
    setPalette(palette);
    static constexpr Qt::Alignment kAlignments[] = {Qt::AlignLeft, Qt::AlignRight, Qt::AlignHCenter};
    const Qt::Alignment alignment = s.alignment >= 0 && s.alignment <= 2 ? kAlignments[s.alignment] : Qt::AlignLeft;
    QTextOption option = document()->defaultTextOption();
    if (option.alignment() != alignment) {
        option.setAlignment(alignment);
        document()->setDefaultTextOption(option);
    }
    setVerticalScrollBarPolicy(s.scrollBar ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
    setReadOnly(s.locked);
    setVisible(s.visible);
}

void TextBox::enterEvent(QEnterEvent* event)
{
    entered_();
    QTextEdit::enterEvent(event);
}

}  // namespace qor::player
