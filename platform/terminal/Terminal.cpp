#include "platform/terminal/Terminal.h"

#include <ncurses.h>
#include <unistd.h>

#include <algorithm>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <cwchar>
#include <optional>
#include <stdexcept>

#include "host/focus/Mnemonic.h"
#include "host/Widgets.h"
#include "values/Text.h"

namespace kel::terminal {

namespace {

/// As high as a caption and half as wide, twips.
constexpr Size Cell{96, 195};
constexpr std::int32_t TwipsPerPixel = 15;

struct Ink {
    Color fore = colors::SystemWindowText;
    Color back = colors::SystemButtonFace;
};

/// Units of a text that look different.
struct Mark {
    std::size_t start = 0;
    std::size_t end = 0;
    attr_t style = A_REVERSE;
};

Rect rowOf(const Rect& place, int row) { return {place.left, place.top + row, place.width, 1}; }

/// A sheet of cells, and the terminal, which shows as much of it as it has room for. Rectangles are in cells.
class Screen {
public:
    explicit Screen(bool seen) : Nowhere_(std::fopen("/dev/null", "r+"), std::fclose) {
        if (seen && (isatty(STDIN_FILENO) == 0 || isatty(STDOUT_FILENO) == 0))
            throw std::runtime_error("there is no terminal to show the form on");
        std::setlocale(LC_CTYPE, "");
        if (MB_CUR_MAX == 1) std::setlocale(LC_CTYPE, "C.UTF-8");
        Terminal_ = seen ? newterm(nullptr, stdout, stdin) : newterm("xterm-256color", Nowhere_.get(), Nowhere_.get());
        if (Terminal_ == nullptr) throw std::runtime_error("nothing is known of this type of terminal");
        raw();
        noecho();
        nonl();
        start_color();
        Sheet_ = newpad(1, 1);
        keypad(Sheet_, true);
        set_escdelay(25);
    }
    ~Screen() {
        delwin(Sheet_);
        endwin();
        delscreen(Terminal_);
    }

    void clear(int rows, int columns) {
        wresize(Sheet_, rows, columns);
        werase(Sheet_);
        placeCursor(0, 0);
    }

    /// Cells that a text takes: two for a wide character, none for a mark that stands on the one before.
    static int columnsOf(std::u16string_view text) {
        int columns = 0;
        while (!text.empty()) columns += wcwidth(takeShown(text));
        return columns;
    }

    /// In the first row of a place, which is wiped. What does not fit is cut off, as are so many columns before it.
    void write(const Rect& place, std::u16string_view text, const Ink& ink, const Mark& mark = {}, int cutOff = 0) {
        const std::size_t size = text.size();
        const int end = place.left + std::max(place.width, 0);
        const int pair = has_colors() ? alloc_pair(paletteIndex(ink.fore), paletteIndex(ink.back)) : 0;
        const auto dip = [&](attr_t style) { wattr_set(Sheet_, style, static_cast<short>(pair), nullptr); };
        dip(A_NORMAL);
        for (int row = 0; row < place.height; ++row)
            mvwhline(Sheet_, place.top + row, place.left, ' ', end - place.left);
        for (int column = place.left - cutOff; !text.empty();) {
            const std::size_t at = size - text.size();
            dip(at >= mark.start && at < mark.end ? mark.style : A_NORMAL);
            const wchar_t character = takeShown(text);
            const int next = column + wcwidth(character);
            if (column >= place.left && next > column && next <= end)
                mvwaddnwstr(Sheet_, place.top, column, &character, 1);
            else if (column > place.left && next == column && column <= end)
                waddnwstr(Sheet_, &character, 1);
            column = next;
        }
    }

    /// The terminal scrolls to here.
    void placeCursor(int row, int column) {
        Top_ = std::max(std::min(std::max(Top_, row - LINES + 2), row), 0);
        Left_ = std::max(std::min(std::max(Left_, column - COLS + 1), column), 0);
        wmove(Sheet_, row, column);
    }

    void show(std::u16string_view status) {
        werase(stdscr);
        mvaddnstr(LINES - 1, 0, toUtf8(status).c_str(), -1);
        touchwin(stdscr);
        wnoutrefresh(stdscr);
        pnoutrefresh(Sheet_, Top_, Left_, 0, 0, LINES - 2, COLS - 1);
        doupdate();
    }

    /// Waits for a key; nothing where there are no more, or the person wants to end.
    std::optional<KeyStroke> readKey() {
        constexpr int ControlQ = 'Q' - 'A' + 1;
        int key = readCode();
        if (key == 0 || key == ControlQ) return std::nullopt;
        if (key != keys::Escape) return strokeOf(key);
        nodelay(Sheet_, true);  // what comes at once with it had Alt held
        key = readCode();
        nodelay(Sheet_, false);
        const KeyStroke stroke = strokeOf(key == 0 ? keys::Escape : key);
        return key == 0 ? stroke : KeyStroke{stroke.code, stroke.character, stroke.modifiers | AltKey};
    }

private:
    /// A character, a key without one counted below 0, or 0 where there is nothing.
    int readCode() {
        wint_t code = 0;
        const int kind = wget_wch(Sheet_, &code);
        return kind == KEY_CODE_YES ? -static_cast<int>(code) : kind == OK ? static_cast<int>(code) : 0;
    }

    static KeyStroke strokeOf(int key) {
        constexpr std::pair<int, std::int16_t> Keys[] = {
            {KEY_UP, keys::Up},        {KEY_DOWN, keys::Down},      {KEY_LEFT, keys::Left},
            {KEY_RIGHT, keys::Right},  {KEY_HOME, keys::Home},      {KEY_END, keys::End},
            {KEY_PPAGE, keys::PageUp}, {KEY_NPAGE, keys::PageDown}, {KEY_IC, keys::Insert},
            {KEY_DC, keys::Delete},    {KEY_F(4), keys::F4},        {KEY_BACKSPACE, keys::Backspace}};
        constexpr std::pair<int, std::int16_t> Shifted[] = {
            {KEY_BTAB, keys::Tab}, {KEY_SLEFT, keys::Left}, {KEY_SRIGHT, keys::Right}, {KEY_SHOME, keys::Home},
            {KEY_SEND, keys::End}, {KEY_SR, keys::Up},      {KEY_SF, keys::Down}};
        for (const auto& [name, code] : Keys)
            if (key == -name) return {code};
        for (const auto& [name, code] : Shifted)
            if (key == -name) return {code, 0, ShiftKey};
        if (key < 0) return {};  // the terminal has another size, or a key that is none of ours
        if (key == 0x7F) return {keys::Backspace};
        if (key >= ' ') return strokeFor(static_cast<char32_t>(key));
        const auto code = static_cast<std::int16_t>(key);
        if (key == keys::Backspace || key == keys::Tab || key == keys::Enter || key == keys::Escape) return {code};
        return {static_cast<std::int16_t>(code + 'A' - 1), 0, ControlKey};
    }

    /// A blank for a character that cannot be shown.
    static wchar_t takeShown(std::u16string_view& text) {
        const auto character = static_cast<wchar_t>(takeCodePoint(text));
        return character < L' ' || wcwidth(character) < 0 ? L' ' : character;
    }

    static int paletteIndex(Color wanted) {
        const Color color = onLightDesktop(wanted);
        // Rounded down, for a pale colour is to be told from white.
        const int step = COLORS < 256 ? 201 : 51;
        const auto level = [=](unsigned shift) { return static_cast<int>(color >> shift & 0xFFU) / step; };
        return COLORS < 256 ? level(0) + 2 * level(8) + 4 * level(16) : 16 + 36 * level(0) + 6 * level(8) + level(16);
    }

    std::unique_ptr<FILE, int (*)(FILE*)> Nowhere_;
    SCREEN* Terminal_ = nullptr;
    WINDOW* Sheet_ = nullptr;
    int Top_ = 0;
    int Left_ = 0;
};

/// What stands side by side in one control comes to one row.
Rect cellsOf(const Rect& bounds, const Rect& origin) {
    const int left = (origin.left + bounds.left) / Cell.width;
    const int right = (origin.left + bounds.left + bounds.width) / Cell.width;
    const int top = origin.top / Cell.height + bounds.top / Cell.height;
    return {left, top, right - left, std::max(bounds.height / Cell.height, 1)};
}

std::u16string repeated(char16_t unit, int count) {
    return std::u16string(static_cast<std::size_t>(std::max(count, 0)), unit);
}

/// Whatever has changed, all is drawn anew: what of it differs is for the terminal's library to find out.
class Terminal final : public Onlooker {
public:
    explicit Terminal(bool seen) : Screen_(seen) {}

    void runUntilClosed() override {
        while (const auto stroke = Screen_.readKey()) Window_->press(*stroke);
    }

    void see(const Scene& scene) override {
        Window_ = &scene.window;
        const Size size = scene.description.clientSize;
        const Rect form = cellsOf({0, 0, size.width, size.height}, {});
        Screen_.clear(form.height + ComboBox::RowsOfList, form.width + 1);
        Screen_.write(form, {}, {});
        for (const auto& [block, origin] : scene.blocks) drawBlock(block, origin);
        for (const auto& [control, origin] : scene.controls) drawControl(*control, origin);
        for (const auto& [control, origin] : scene.controls)  // its list is above all others
            if (control == Window_->focused()) drawControl(*control, origin);
        Screen_.show(scene.description.caption + u" - Ctrl+Q ends");
    }

    void messageBox(std::u16string_view prompt, std::u16string_view title) override {
        Screen_.show(std::u16string(title) + u": " + std::u16string(prompt));
        Screen_.readKey();
    }

    void beep() override { ::beep(); }

private:
    void drawBlock(const ForeignBlock& block, const Rect& origin) {
        const Rect place =
            cellsOf(block.kind == ForeignBlock::Kind::Line ? block.line : block.placement.bounds, origin);
        switch (block.kind) {
            case ForeignBlock::Kind::Label: return drawCaption(place, block.caption, {});
            case ForeignBlock::Kind::Button: return drawCaption(place, block.caption, {.back = 0xB0B0B0});
            case ForeignBlock::Kind::Line: return Screen_.write(place, repeated(u'\u2500', place.width), {});
            case ForeignBlock::Kind::Panel: return drawFrame(place, block.caption);
            case ForeignBlock::Kind::Other: return drawFrame(place, block.className);
        }
    }

    void drawFrame(const Rect& place, std::u16string_view title) {
        const std::u16string edge = repeated(u'\u2500', place.width - 2);
        const std::u16string side = u"\u2502" + repeated(u' ', place.width - 2) + u"\u2502";
        Screen_.write(place, u"\u250C" + edge + u"\u2510", {});
        for (int row = 1; row < place.height - 1; ++row) Screen_.write(rowOf(place, row), side, {});
        Screen_.write(rowOf(place, place.height - 1), u"\u2514" + edge + u"\u2518", {});
        drawCaption({place.left + 2, place.top, std::min(Screen::columnsOf(title), place.width - 4), 1}, title, {});
    }

    void drawCaption(const Rect& place, std::u16string_view caption, const Ink& ink) {
        const ReadCaption read = readCaption(caption);
        Screen_.write(place, read.text, ink, {read.mnemonic, read.mnemonic + 1, A_UNDERLINE});
    }

    void drawControl(PlacedControl& control, const Rect& parent) {
        const WidgetSet widgets = control.control().widgets();
        const Rect origin{parent.left + control.bounds().left, parent.top + control.bounds().top};
        const bool live = widgets.field == nullptr || widgets.field->takesInput();
        const auto foreOf = [&](const TextualWidget& widget) {
            return live ? widget.foreColor() : colors::SystemGrayText;
        };
        if (const Label* const label = widgets.label)
            drawCaption(cellsOf(label->bounds(), origin), label->caption(), {.fore = foreOf(*label)});
        if (const UpDown* const spinner = widgets.upDown; spinner != nullptr && spinner->visible())
            Screen_.write(cellsOf(spinner->bounds(), origin), u"\u2195", {});
        if (const PictureBox* const box = widgets.picture)
            drawBar(box->picture(), cellsOf(box->bounds(), origin), {.fore = foreOf(*box)});
        const FieldWidget* const field = widgets.field;
        if (field != nullptr && field->visible())
            drawField(widgets, cellsOf(field->bounds(), origin), {foreOf(*field), field->backColor()},
                      Window_->focused() == &control);
    }

    void drawBar(const BarPicture& bar, const Rect& place, const Ink& ink) {
        std::u16string text = repeated(u' ', bar.textLeft / Cell.width) + bar.text;
        text.resize(static_cast<std::size_t>(place.width), u' ');
        Screen_.write(place, text, ink, {.end = static_cast<std::size_t>(bar.barWidth / Cell.width)});
    }

    void drawField(const WidgetSet& widgets, Rect place, const Ink& ink, bool focused) {
        if (const CheckBox* const box = widgets.checkBox) {
            constexpr std::u16string_view States[] = {u"[ ]", u"[x]", u"[-]"};
            Screen_.write(place, States[static_cast<std::size_t>(box->value())], ink);
            drawCaption({place.left + 4, place.top, place.width - 4, 1}, box->caption(), ink);
            if (focused) Screen_.placeCursor(place.top, place.left + 1);
        }
        if (const ComboBox* const box = widgets.comboBox) {
            if (box->isDropped()) drawList(*box, place);
            Screen_.write({place.left + --place.width, place.top, 1, 1}, u"\u25BE", ink);
        }
        if (widgets.entry != nullptr) drawText(*widgets.entry, place, ink, focused);
    }

    void drawList(const ComboBox& box, const Rect& place) {
        const int columns = std::max(place.width, box.droppedWidth() * TwipsPerPixel / Cell.width);
        const int rows = std::min(ComboBox::RowsOfList, box.items().size());
        const int first = std::clamp(box.highlighted() - rows / 2, 0, box.items().size() - rows);
        for (int row = 0; row < rows; ++row) {
            std::u16string item = u"\u2502" + std::u16string(box.items().item(first + row));
            item += repeated(u' ', columns - Screen::columnsOf(item));
            const bool highlighted = first + row == box.highlighted();
            Screen_.write({place.left, place.top + 1 + row, columns, 1}, item, {.back = colors::SystemWindow},
                          {.end = highlighted ? item.npos : 0});
        }
        Screen_.placeCursor(place.top + rows, place.left);
    }

    void drawText(const TextEntry& box, const Rect& place, const Ink& ink, bool focused) {
        const std::u16string shown = box.shownText();
        const Selection selection = focused ? box.selection() : Selection{};
        TextLine line = box.buffer().lineAt(selection.caret);
        for (int above = 1; above < place.height && line.start > 0; ++above) line = box.buffer().lineAt(line.start - 2);
        Screen_.write(place, {}, ink);
        for (int row = 0; row < place.height; ++row, line = box.buffer().lineAt(line.next)) {
            const std::u16string text = shown.substr(line.start, line.end - line.start);
            const bool holdsCaret = focused && selection.caret >= line.start && selection.caret <= line.end;
            const int column = holdsCaret ? Screen::columnsOf(text.substr(0, selection.caret - line.start)) : 0;
            const int cutOff = std::max(column - place.width + 1, 0);
            const auto inLine = [&](std::size_t position) { return std::max(position, line.start) - line.start; };
            Screen_.write(rowOf(place, row), text, ink, {inLine(selection.start()), inLine(selection.end())}, cutOff);
            if (holdsCaret) Screen_.placeCursor(place.top + row, place.left + column - cutOff);
            if (line.isLast) break;
        }
    }

    Screen Screen_;
    FormWindow* Window_ = nullptr;
};

}  // namespace

std::unique_ptr<Onlooker> makeTerminal(bool seen) { return std::make_unique<Terminal>(seen); }

}  // namespace kel::terminal
