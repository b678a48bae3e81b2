#include "editor/ui/about_window.h"

#include <QEvent>

#include <algorithm>
#include <QGuiApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QScreen>

#include "core/ui/credits.h"
#include "editor/platform/qt_text.h"
#include "editor/platform/twips.h"
#include "editor/platform/widget_names.h"

namespace qor {
namespace {

constexpr double kWidthTwips = 4650;
constexpr double kHeightTwips = 2550;
constexpr double kTitleHeightTwips = 360;
constexpr double kLineTwips = 240;
constexpr int kStepMs = 10;
constexpr const char* kAddressProperty = "Tag";

void setUnderlined(QLabel* label, bool on)
{
    QFont f = label->font();
    f.setUnderline(on);
    label->setFont(f);
}

}  // namespace

AboutWindow::AboutWindow(const ScreenMetrics& screen, WindowHooks& hooks)
    : QWidget(nullptr, Qt::Window | Qt::WindowCloseButtonHint), screen_(screen)
{
    named(this, WindowId::About);
    setWindowTitle(QStringLiteral("Crédits"));
    setMouseTracking(true);
    title_ = named(new QLabel(QString::fromUtf8(kCreditsTitle), this), "Label1");
    title_->setAlignment(Qt::AlignCenter);
    QFont bold = title_->font();
    bold.setBold(true);
    title_->setFont(bold);
    panel_ = named(new QWidget(this), "Picture1");
    panel_->setProperty(kAddressProperty, QString());
    buildCredits();
    for (QObject* o : std::initializer_list<QObject*>{this, panel_, title_})
        o->installEventFilter(this);

    runLoadHooks(*this, hooks);
    setFixedSize(twipsToPixels(kWidthTwips, kHeightTwips, screen_));
    layOut();
    top_ = kHeightTwips - kTitleHeightTwips;
    placePanel();
    if (QScreen* s = QGuiApplication::primaryScreen())
        move(s->availableGeometry().center() - rect().center());

    scroll_.setInterval(kStepMs);
    connect(&scroll_, &QTimer::timeout, this, &AboutWindow::step);
}

void AboutWindow::buildCredits()
{
    for (const CreditLine& line : creditLines()) {
        auto& group = line.heading ? headings_ : entries_;
        auto* label = named(new QLabel(toQt(line.text), panel_), line.heading ? "Label2" : "Label3", int(group.size()));
        label->setAlignment(Qt::AlignCenter);
        label->setMouseTracking(true);
        label->installEventFilter(this);
        if (line.heading) {
            QFont f = label->font();
            f.setBold(true);
            label->setFont(f);
        } else {
            label->setProperty(kAddressProperty, toQt(line.address));
            label->setCursor(Qt::UpArrowCursor);
        }
        group.push_back(label);
    }
}

void AboutWindow::layOut()
{
    const int width = this->width();
    const int titleHeight = twipsToPixels(kTitleHeightTwips, screen_.twipsPerPixelY);
    title_->setGeometry(0, 0, width, titleHeight);
    const int line = twipsToPixels(kLineTwips, screen_.twipsPerPixelY);
    int y = 0;
    std::size_t h = 0, e = 0;
    for (const CreditLine& c : creditLines()) {
        QLabel* label = c.heading ? headings_[h++] : entries_[e++];
        // Headings stand apart from the entries above them.
        if (c.heading && y > 0)
            y += line / 2;
        label->setGeometry(0, y, width, line);
        y += line;
    }
    panel_->resize(width, y);
}

void AboutWindow::placePanel()
{
    const int titleHeight = twipsToPixels(kTitleHeightTwips, screen_.twipsPerPixelY);
    panel_->move((width() - panel_->width()) / 2, titleHeight + twipsToPixels(top_, screen_.twipsPerPixelY));
    // The title stays readable above the credits passing under it.
    title_->raise();
}

bool AboutWindow::paused() const { return panel_->property(kAddressProperty).toString() == kCreditsPaused; }

void AboutWindow::step()
{
    if (paused())
        return;
    const double height = pixelsToTwips(panel_->height(), screen_.twipsPerPixelY);
    top_ = nextCreditsTop(top_, height, kHeightTwips - kTitleHeightTwips);
    placePanel();
}

void AboutWindow::pointerOver(QObject* watched)
{
    auto* entry = qobject_cast<QLabel*>(watched);
    const bool onEntry = entry && std::find(entries_.begin(), entries_.end(), entry) != entries_.end();
    for (QLabel* e : entries_)
        setUnderlined(e, e == watched);
    panel_->setProperty(kAddressProperty, onEntry ? QString::fromUtf8(kCreditsPaused) : QString());
}

bool AboutWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Enter || event->type() == QEvent::MouseMove)
        pointerOver(watched);
    if (event->type() == QEvent::MouseButtonPress && watched != this) {
        auto* entry = qobject_cast<QLabel*>(watched);
        if (entry && std::find(entries_.begin(), entries_.end(), entry) != entries_.end()) {
            const std::string target = creditLinkTarget(fromQt(entry->property(kAddressProperty).toString()));
            if (!target.empty())
                emit linkActivated(toQt(target));
            return true;
        }
        close();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void AboutWindow::mousePressEvent(QMouseEvent* event)
{
    event->accept();
    close();
}

void AboutWindow::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    scroll_.start();
}

void AboutWindow::hideEvent(QHideEvent* event)
{
    scroll_.stop();
    QWidget::hideEvent(event);
}

void AboutWindow::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    // The window keeps its one size.
    const QSize fixed = twipsToPixels(kWidthTwips, kHeightTwips, screen_);
    if (size() != fixed)
        resize(fixed);
}

}  // namespace qor
