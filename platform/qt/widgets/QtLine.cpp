#include "platform/qt/widgets/QtLine.h"

#include <algorithm>
#include <limits>
#include <QAccessible>
#include <QApplication>
#include <QContextMenuEvent>
#include <QDrag>
#include <QInputMethod>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleHints>
#include <QStyleOptionFrame>
#include <QTextFormat>

#include "host/editing/TextDifference.h"
#include "platform/qt/base/EdgeGuard.h"
#include "platform/qt/base/TextBridge.h"
#include "platform/qt/base/WidgetSettings.h"
#include "platform/qt/control/QtFocus.h"

namespace kel::qt {

namespace {

constexpr int TextMargin = 2;  ///< between the frame and the text, pixels

/// One line is edited at a time: its layout stands until another one wants it, and a thousand fields keep none.
struct LaidOut {
    const QtLine* line = nullptr;
    bool isCurrent = false;  ///< else the text is another one meanwhile, and what stands here was shown
    LineLayout layout;
};

LaidOut& laidOut() {
    static LaidOut Current;
    return Current;
}

/// What a line looks like without its text, of the one that was last painted in part. The style takes several times as
/// long for it as for the text, which alone changes with a key.
struct PaintedGround {
    const QtLine* line = nullptr;
    QPixmap picture;
};

PaintedGround& paintedGround() {
    static PaintedGround Current;
    return Current;
}

constexpr Qt::InputMethodHints PasswordHints =
    Qt::ImhHiddenText | Qt::ImhNoPredictiveText | Qt::ImhNoAutoUppercase | Qt::ImhSensitiveData;

/// Its letters stand one after the other, none wider than the font's widest.
bool isPlain(QStringView text) {
    return std::all_of(text.begin(), text.end(), [](QChar unit) { return unit >= u' ' && unit <= u'~'; });
}

}  // namespace

QtLine::QtLine(ControlSite& site, TextEntry& box, QWidget& parent) : QWidget(&parent), TextInput(site, *this, box) {
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_InputMethodEnabled);
    setAcceptDrops(true);
}

QtLine::~QtLine() {
    dropLayout();
    if (paintedGround().line == this) paintedGround() = {};
}

// ---- What is shown

void QtLine::outOfDate() {
    const Changes changes = box().takeChanges();
    showState(changes);
    if (changes.has(Change::Password)) setInputMethodHints(box().isPassword() ? PasswordHints : Qt::ImhNone);
    if (changes.has(Change::Colors)) recolor();
    if (changes.has(Change::Locked)) update();
    const bool isEdit = changes.has(Change::Text) || changes.has(Change::Selection);
    const QRect altered = isEdit && isVisible() ? areaOfEdit() : QRect();
    if (changes.has(Change::Password)) dropLayout();
    if (changes.has(Change::Text) && laidOut().line == this) laidOut().isCurrent = false;
    showMore(changes);
    if (!isEdit) return;
    // Whatever moves text or caret ends a composition.
    if (!Composition_.text.isEmpty()) {
        compose({});
        QGuiApplication::inputMethod()->reset();
    }
    if (QAccessible::isActive()) tellReaders(changes.has(Change::Text));
    if (!isVisible()) return;
    update(altered);
    if (hasFocus()) {
        showCaret(true);
        updateMicroFocus();
    }
}

void QtLine::recolor() {
    Look_ = fieldPalette(colors(), palette());
    update();
}

const LineLayout& QtLine::layout() const {
    LaidOut& current = laidOut();
    if (current.line != this || !current.isCurrent) {
        current.layout.lay(box().shownText(), font(), layoutDirection(), Composition_, box().selection().start());
        current.line = this;
        current.isCurrent = true;
    }
    return current.layout;
}

void QtLine::dropLayout() const {
    if (laidOut().line == this) laidOut().line = nullptr;
}

/// A screen reader is told what a person sees, of one that somebody has found.
void QtLine::tellReaders(bool textDiffers) {
    QAccessibleInterface* const spoken = QAccessible::queryAccessibleInterface(this);
    const std::u16string now = box().shownText();
    if (textDiffers && ToldText_ != now) {
        const TextDifference difference = differenceOf(ToldText_, now, box().selection().caret);
        QAccessibleTextUpdateEvent event(
            this, toInt(difference.start),
            toQString(std::u16string_view(ToldText_).substr(difference.start, difference.end - difference.start)),
            toQString(std::u16string_view(now).substr(difference.start, difference.newEnd - difference.start)));
        QAccessible::updateAccessibility(&event);
        ToldText_ = now;
        tellStanding(*spoken);
    }
    QAccessibleTextSelectionEvent event(this, toInt(box().selection().start()), toInt(box().selection().end()));
    event.setCursorPosition(toInt(box().selection().caret));
    QAccessible::updateAccessibility(&event);
}

/// With its text, a field's number may be another one, and what is said of it.
void QtLine::tellStanding(QAccessibleInterface& spoken) {
    if (QAccessibleValueInterface* const dial = spoken.valueInterface()) {
        QAccessibleValueChangeEvent event(this, dial->currentValue());
        QAccessible::updateAccessibility(&event);
    }
    const QString description = spoken.text(QAccessible::Description);
    if (std::exchange(ToldDescription_, description) == description) return;
    QAccessibleEvent event(this, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&event);
}

// ---- Places

QStyleOptionFrame QtLine::panel(int frameWidth) const {
    QStyleOptionFrame option;
    option.initFrom(this);
    option.palette = Look_;
    option.palette.setCurrentColorGroup(palette().currentColorGroup());
    option.lineWidth = frameWidth;
    option.state |= QStyle::State_Sunken;
    if (box().locked()) option.state |= QStyle::State_ReadOnly;
    return option;
}

QRect QtLine::textArea() const {
    if (TextArea_.isNull()) TextArea_ = findTextArea();
    return TextArea_;
}

/// What a key alters of the text, caret and selection, at most, as far as what was painted tells it: a key costs by
/// what goes to the screen. All of the text where more is going on than plain letters that come and go.
QRect QtLine::areaOfEdit() const {
    constexpr std::size_t Joined = 4;  // letters that a font may draw otherwise because of the one after them
    const QRect area = textArea();
    const std::u16string_view text = box().text();
    const QStringView now(text);
    if (laidOut().line != this || box().isPassword() || !Composition_.text.isEmpty() || Scrolled_ != 0 || now.isEmpty())
        return area;
    const LineLayout& before = laidOut().layout;
    const QString was = before.text();
    if (before.isRightToLeft() || !isPlain(was) || !isPlain(now)) return area;
    const auto kept =
        static_cast<std::size_t>(std::mismatch(was.begin(), was.end(), now.begin(), now.end()).first - was.begin());
    const Selection& selection = box().selection();
    const std::size_t first = std::min({kept, Painted_.start(), selection.start()});
    const QFontMetrics metrics = fontMetrics();
    const int widest = metrics.maxWidth();
    const int left = before.xOf(first - std::min(first, Joined)) - widest;
    int right = before.xOf(kept) + toInt(text.size() - kept) * widest;
    if (right + widest > area.width()) {
        right = before.xOf(kept);
        for (const QChar letter : now.sliced(toInt(kept))) right += metrics.horizontalAdvance(letter);
    }
    right =
        widest + (was == now ? before.xOf(std::max(Painted_.end(), selection.end())) : std::max(before.width(), right));
    if (right > area.width()) return area;
    return area & QRect(area.x() + TextMargin + left, area.y(), right - left, area.height());
}

void QtLine::placeTextAgain() {
    TextArea_ = {};
    update();
}

QRect QtLine::findTextArea() const {
    const QStyleOptionFrame option = panel(style()->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, this));
    return style()->subElementRect(QStyle::SE_LineEditContents, &option, this);
}

/// In the middle, or as the widest line is seen.
QPoint QtLine::textCorner() const {
    const QRect area = textArea();
    const int top = area.y() + (area.height() - fontMetrics().height() + 1) / 2;
    const int room = area.width() - 2 * TextMargin;
    const bool atRight = layout().isRightToLeft() && layout().width() < room;
    const int left = area.x() + TextMargin + (atRight ? room - layout().width() - 1 : -Scrolled_);
    return {left, top};
}

int QtLine::baseline() const {
    const QRect area = textArea();
    const QFontMetrics metrics = fontMetrics();
    return area.y() + (area.height() - metrics.height() + 1) / 2 + metrics.ascent();
}

/// With the edges, and the button of a combo box.
int QtLine::widthFor(int characters) const {
    return FieldView::widthFor(characters) + width() - textArea().width() + 2 * TextMargin;
}

/// As far as need be, and no further than the text reaches.
void QtLine::scrollToCaret() {
    const int room = textArea().width() - 2 * TextMargin;
    const int used = layout().width() + 1;
    const int caret = layout().xOf(box().selection().caret);
    if (used <= room)
        Scrolled_ = 0;
    else if (caret - Scrolled_ >= room)
        Scrolled_ = caret - room + 1;
    else if (caret < Scrolled_)
        Scrolled_ = caret;
    else
        Scrolled_ = std::min(Scrolled_, used - room + 1);
}

QRect QtLine::caretRect(std::size_t position) const {
    const int width = style()->pixelMetric(QStyle::PM_TextCursorWidth, nullptr, this);
    return {textCorner() + QPoint(layout().xOf(position), 0), QSize(width, fontMetrics().height())};
}

std::size_t QtLine::positionAt(const QPoint& point) const { return layout().positionAt(point.x() - textCorner().x()); }

// ---- Painting

void QtLine::paintGround(QPainter& painter) const {
    const QStyleOptionFrame option = panel(style()->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, this));
    style()->drawPrimitive(QStyle::PE_PanelLineEdit, &option, &painter, this);
}

/// All of it as the style paints it, whatever it is that changes; a part out of the picture of all.
void QtLine::paintGroundIn(QPainter& painter, const QRect& area) const {
    PaintedGround& ground = paintedGround();
    if (!textArea().contains(area)) {
        if (ground.line == this) ground = {};
        paintGround(painter);
        return;
    }
    if (ground.line != this) {
        QPixmap picture(size() * devicePixelRatio());
        picture.setDevicePixelRatio(devicePixelRatio());
        picture.fill(Qt::transparent);
        QPainter onPicture(&picture);
        onPicture.setFont(font());
        paintGround(onPicture);
        onPicture.end();
        ground = {this, picture};
    }
    const qreal ratio = ground.picture.devicePixelRatio();
    painter.drawPixmap(area, ground.picture,
                       QRectF(QPointF(area.topLeft()) * ratio, QSizeF(area.size()) * ratio).toAlignedRect());
}

void QtLine::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    paintGroundIn(painter, event->rect());
    scrollToCaret();
    const QRect area = textArea();
    const QPoint corner = textCorner();
    QPalette palette = Look_;
    palette.setCurrentColorGroup(this->palette().currentColorGroup());
    painter.setClipRect(area);
    Painted_ = box().selection();
    layout().paint(painter, corner, Painted_, palette, area);
    const bool isDroppedOn = DropPlace_ != Nowhere;
    if (!isDroppedOn && !(CaretOn_ && seesCaret() && Composition_.caretShown)) return;
    const int width = style()->pixelMetric(QStyle::PM_TextCursorWidth, nullptr, this);
    layout().paintCaret(painter, corner, isDroppedOn ? DropPlace_ : box().selection().caret, width);
}

void QtLine::showCaret(bool shown) {
    const int flash = QGuiApplication::styleHints()->cursorFlashTime();
    if (shown && flash >= 2)
        Blink_.start(flash / 2, this);
    else
        Blink_.stop();
    if (std::exchange(CaretOn_, shown) != shown) update(textArea());
}

void QtLine::timerEvent(QTimerEvent* event) {
    if (event->timerId() != Blink_.timerId()) return QWidget::timerEvent(event);
    CaretOn_ = !CaretOn_;
    update(textArea());
}

// ---- Events

bool QtLine::event(QEvent* event) {
    return hear(*event, [&] { return QWidget::event(event); });
}

void QtLine::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    switch (event->type()) {
        case QEvent::PaletteChange: recolor(); break;
        case QEvent::FontChange:
        case QEvent::StyleChange:
        case QEvent::LayoutDirectionChange:
            dropLayout();
            placeTextAgain();
            break;
        case QEvent::EnabledChange:
        case QEvent::ActivationChange: update(); break;
        default: break;
    }
}

void QtLine::resizeEvent(QResizeEvent* /*event*/) { placeTextAgain(); }

void QtLine::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    showCaret(true);
}

void QtLine::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    showCaret(false);
}

/// Not before anybody can see it: for a form of many fields it is a heap of cursors.
void QtLine::enterEvent(QEnterEvent* /*event*/) { setCursor(Qt::IBeamCursor); }

// ---- Input methods

void QtLine::compose(Composition composition) {
    Composition_ = std::move(composition);
    dropLayout();
    update(textArea());
    updateMicroFocus();
}

void QtLine::showComposition(QInputMethodEvent& event) {
    Composition composition;
    composition.text = event.preeditString();
    composition.caret = toInt(static_cast<std::size_t>(composition.text.size()));
    for (const QInputMethodEvent::Attribute& attribute : event.attributes()) {
        if (attribute.type == QInputMethodEvent::Cursor) {
            composition.caret = attribute.start;
            composition.caretShown = attribute.length != 0;
        } else if (attribute.type == QInputMethodEvent::TextFormat && attribute.length > 0) {
            const QTextCharFormat format = qvariant_cast<QTextFormat>(attribute.value).toCharFormat();
            composition.formats.append({attribute.start, attribute.length, format});
        }
    }
    if (!composition.text.isEmpty() || !Composition_.text.isEmpty()) compose(std::move(composition));
}

QVariant QtLine::inputMethodQuery(Qt::InputMethodQuery query) const {
    const Selection& selection = box().selection();
    switch (query) {
        case Qt::ImEnabled: return isEnabled() && !box().locked();
        case Qt::ImCursorRectangle: return caretRect(selection.caret);
        case Qt::ImAnchorRectangle: return caretRect(selection.anchor);
        case Qt::ImCursorPosition: return toInt(selection.caret);
        case Qt::ImAnchorPosition: return toInt(selection.anchor);
        case Qt::ImSurroundingText: return box().isPassword() ? QString() : toQString(box().text());
        case Qt::ImCurrentSelection: return box().isPassword() ? QString() : toQString(box().buffer().selectedText());
        case Qt::ImMaximumTextLength:
            return box().maxLength() > 0 ? box().maxLength() : std::numeric_limits<int>::max();
        default: return QWidget::inputMethodQuery(query);
    }
}

// ---- Mouse

void QtLine::mousePressEvent(QMouseEvent* event) {
    PressedAt_ = event->position().toPoint();
    const std::int32_t place = toInt(positionAt(PressedAt_));
    const MousePress press{buttonOf(event->button()), takeAim(place), clicksOf(*event),
                           event->modifiers().testFlag(Qt::ShiftModifier)};
    MayDrag_ = place == press.position && box().mayDrag(press);
    if (MayDrag_)
        box().pressMouse(press.button);
    else
        box().press(press);
}

void QtLine::mouseMoveEvent(QMouseEvent* event) {
    if (!event->buttons().testFlag(Qt::LeftButton)) return;
    const QPoint point = event->position().toPoint();
    if (!MayDrag_) {
        box().dragTo(toInt(positionAt(point)));
    } else if ((point - PressedAt_).manhattanLength() >= QApplication::startDragDistance()) {
        MayDrag_ = false;
        startDrag();
    }
}

void QtLine::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::MiddleButton) return pastePicked();
    if (event->button() != Qt::LeftButton) return;
    // A click into the selection, which might have become a drag.
    if (std::exchange(MayDrag_, false)) box().setSelStart(toInt(positionAt(event->position().toPoint())));
    offerPicked();
    box().releaseMouse(rect().contains(event->position().toPoint()));
}

/// Another program that takes the text takes it away; another field copies it.
void QtLine::startDrag() {
    const QPointer<QtLine> alive(this);
    auto* const drag = new QDrag(this);
    auto* const dragged = new QMimeData;
    dragged->setText(toQString(box().buffer().selectedText()));
    drag->setMimeData(dragged);
    const Qt::DropAction action = drag->exec(Qt::MoveAction | Qt::CopyAction, Qt::CopyAction);
    if (!alive.isNull() && action == Qt::MoveAction && drag->target() != this)
        box().perform(EditAction::EraseSelection);
}

void QtLine::contextMenuEvent(QContextMenuEvent* event) {
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    menuAsked(byKey ? mapToGlobal(caretRect(box().selection().caret).bottomLeft()) : event->globalPos());
}

// ---- Drops

void QtLine::dragMoveEvent(QDragMoveEvent* event) {
    hovered(*event);
    DropPlace_ = event->isAccepted() ? positionAt(event->position().toPoint()) : Nowhere;
    update(textArea());
}

void QtLine::dragLeaveEvent(QDragLeaveEvent* /*event*/) {
    DropPlace_ = Nowhere;
    update(textArea());
}

void QtLine::dropEvent(QDropEvent* event) {
    dragLeaveEvent(nullptr);
    if (accepts(*event)) dropped(*event, positionAt(event->position().toPoint()));
}

}  // namespace kel::qt
