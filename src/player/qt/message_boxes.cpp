#include "player/qt/message_boxes.h"

#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>

#include <utility>
#include <vector>

namespace qor::player {
namespace {

using Answer = std::pair<QMessageBox::StandardButton, int>;

// Each button set with the answer number of each of its buttons, in order.
const std::vector<Answer> kButtonSets[] = {
    {{QMessageBox::Ok, 1}},
    {{QMessageBox::Ok, 1}, {QMessageBox::Cancel, 2}},
    {{QMessageBox::Abort, 3}, {QMessageBox::Retry, 4}, {QMessageBox::Ignore, 5}},
    {{QMessageBox::Yes, 6}, {QMessageBox::No, 7}, {QMessageBox::Cancel, 2}},
    {{QMessageBox::Yes, 6}, {QMessageBox::No, 7}},
    {{QMessageBox::Retry, 4}, {QMessageBox::Cancel, 2}},
};

QMessageBox::Icon iconOf(int buttons)
{
    switch (buttons & 0x70) {
    case 16: return QMessageBox::Critical;
    case 32: return QMessageBox::Question;
    case 48: return QMessageBox::Warning;
    case 64: return QMessageBox::Information;
    default: return QMessageBox::NoIcon;
    }
}

}  // namespace

int showMessageBox(QWidget* parent, const MessageRequest& request)
{
    const int set = request.buttons & 7;
    const std::vector<Answer>& answers = kButtonSets[set < 6 ? set : 0];
    QMessageBox box(iconOf(request.buttons), QString::fromStdString(request.title),
                    QString::fromStdString(request.text).replace(QStringLiteral("\r\n"), QStringLiteral("\n")),
                    QMessageBox::NoButton, parent);
    for (const auto& [button, answer] : answers)
        box.addButton(button);
    const std::size_t def = std::size_t((request.buttons >> 8) & 3);
    box.setDefaultButton(answers[def < answers.size() ? def : 0].first);
    if (request.buttons & 4096)
        box.setWindowFlag(Qt::WindowStaysOnTopHint);
    box.exec();
    const QAbstractButton* clicked = box.clickedButton();
    for (const auto& [button, answer] : answers)
        if (clicked && box.standardButton(const_cast<QAbstractButton*>(clicked)) == button)
            return answer;
    // Closed with Escape or the window's close button: the box's cancel answer.
    return answers.size() > 1 ? answers.back().second : answers.front().second;
}

std::optional<std::string> showInputBox(QWidget* parent, const script::InputBoxRequest& request)
{
    bool ok = false;
    const QString text = QInputDialog::getText(
        parent, QString::fromStdString(request.title.value_or("")), QString::fromStdString(request.prompt),
        QLineEdit::Normal, QString::fromStdString(request.defaultText), &ok);
    if (!ok)
        return std::nullopt;
    return text.toStdString();
}

}  // namespace qor::player
