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
#include "host/TwipScale.h"
#include "host/Widgets.h"
#include "values/Text.h"

namespace kel::terminal {

namespace {

/// As high as a caption and half as wide, twips.
constexpr Size Cell{96, 195};

struct Ink {
    Color fore = colors::SystemWindowText;
    Color back = colors::SystemButtonFace;
    std::u16string_view marked{};  ///< the part of the text that looks different
    attr_t mark = A_REVERSE;
};

int paletteIndex(Color wanted) {
    const Color color = onLightDesktop(wanted);
    // Rounded down, for a pale colour is to be told from white.
    const int step = COLORS < 256 ? 201 : 51;
    const auto level = [=](unsigned shift) { return static_cast<int>(color >> shift & 0xFFU) / step; };
    return COLORS < 256 ? level(0) + 2 * level(8) + 4 * level(16) : 16 + 36 * level(0) + 6 * level(8) + level(16);
}

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

/// A blank for a character that cannot be shown.
wchar_t takeShown(std::u16string_view& text) {
    const auto character = static_cast<wchar_t>(takeCodePoint(text));
    return character < L' ' || wcwidth(character) < 0 ? L' ' : character;
}

/// Cells that a text takes: two for a wide character, none for a mark that stands on the one before.
int columnsOf(std::u16string_view text) {
    int columns = 0;
    while (!text.empty()) columns += wcwidth(takeShown(text));
    return columns;
}

/// Of a character, or of a key without one, which is counted below 0.
KeyStroke strokeOf(int key, Modifiers held) {
    constexpr std::pair<int, std::int16_t> Keys[] = {
        {KEY_UP, keys::Up},     {KEY_DOWN, keys::Down}, {KEY_LEFT, keys::Left},    {KEY_RIGHT, keys::Right},
        {KEY_HOME, keys::Home}, {KEY_END, keys::End},   {KEY_PPAGE, keys::PageUp}, {KEY_NPAGE, keys::PageDown},
        {KEY_IC, keys::Insert}, {KEY_DC, keys::Delete}, {KEY_F(4), keys::F4},      {KEY_BACKSPACE, keys::Backspace}};
    constexpr std::pair<int, std::int16_t> Shifted[] = {
        {KEY_BTAB, keys::Tab}, {KEY_SLEFT, keys::Left}, {KEY_SRIGHT, keys::Right}, {KEY_SHOME, keys::Home},
        {KEY_SEND, keys::End}, {KEY_SR, keys::Up},      {KEY_SF, keys::Down}};
    for (const auto& [name, code] : Keys)
        if (key == -name) return {code, 0, held};
    for (const auto& [name, code] : Shifted)
        if (key == -name) return {code, 0, held | ShiftKey};
    if (key < 0) return {};  // the terminal has another size, or a key that is none of ours
    const KeyStroke stroke = strokeFor(static_cast<char32_t>(key));
    return {stroke.code, stroke.character, stroke.modifiers | held};
}

/// Draws windows in memory on a sheet of cells, of which the terminal shows as much as it has room for. Whatever has
/// changed, all is drawn anew: what of it differs is for the terminal's library to find out. Rectangles are in cells.
class Terminal final : public Onlooker {
public:
    explicit Terminal(bool seen) : Nowhere_(std::fopen("/dev/null", "r+"), std::fclose) {
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
    ~Terminal() override {
        delwin(Sheet_);
        endwin();
        delscreen(Terminal_);
    }

    void runUntilClosed() override {
        while (const auto stroke = readKey()) Window_->press(*stroke);
    }

    void see(const Scene& scene) override {
        Window_ = &scene.window;
        const Rect form = cellsOf({0, 0, scene.description.clientSize.width, scene.description.clientSize.height}, {});
        wresize(Sheet_, form.height + ComboBox::RowsOfList, form.width + 1);
        werase(Sheet_);
        placeCursor(0, 0);
        write(form, {}, {});
        for (const auto& [block, origin] : scene.blocks) drawBlock(block, origin);
        for (const auto& [control, origin] : scene.controls) drawControl(*control, origin);
        for (const auto& [control, origin] : scene.controls)  // its list is above all others
            if (control == Window_->focused()) drawControl(*control, origin);
        show(scene.description.caption + u" - Ctrl+Q ends");
    }

    void messageBox(std::u16string_view prompt, std::u16string_view title) override {
        show(std::u16string(title) + u": " + std::u16string(prompt));
        readKey();
    }

    void beep() override { ::beep(); }

private:
    /// Waits for one; nothing where there are no more, or the person wants to end, by Ctrl+Q.
    std::optional<KeyStroke> readKey() {
        const int key = readCode(true);
        if (key == 0 || key == 'Q' - 'A' + 1) return std::nullopt;
        // What comes at once with it had Alt held.
        const int withAlt = key == keys::Escape ? readCode(false) : 0;
        return withAlt == 0 ? strokeOf(key, NoModifier) : strokeOf(withAlt, AltKey);
    }

    /// A character, a key without one counted below 0, or 0 where there is nothing.
    int readCode(bool waits) {
        wint_t code = 0;
        nodelay(Sheet_, !waits);
        const int kind = wget_wch(Sheet_, &code);
        return kind == KEY_CODE_YES ? -static_cast<int>(code) : kind == OK ? static_cast<int>(code) : 0;
    }

    /// In the first row of a place, which is wiped. What does not fit is cut off.
    void write(const Rect& place, std::u16string_view text, const Ink& ink) {
        const int end = place.left + std::max(place.width, 0);
        const int pair = has_colors() ? alloc_pair(paletteIndex(ink.fore), paletteIndex(ink.back)) : 0;
        const auto dip = [&](attr_t style) { wattr_set(Sheet_, style, static_cast<short>(pair), nullptr); };
        dip(A_NORMAL);
        for (int row = 0; row < place.height; ++row)
            mvwhline(Sheet_, place.top + row, place.left, ' ', end - place.left);
        for (int column = place.left; !text.empty();) {
            dip(text.data() >= ink.marked.begin() && text.data() < ink.marked.end() ? ink.mark : A_NORMAL);
            const wchar_t character = takeShown(text);
            const int next = column + wcwidth(character);
            if (next <= end) mvwaddnwstr(Sheet_, place.top, column, &character, 1);
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

    void drawBlock(const ForeignBlock& block, const Rect& origin) {
        const Rect place = cellsOf(block.placement.bounds, origin);
        switch (block.kind) {
            case ForeignBlock::Kind::Label: return drawCaption(place, block.caption, {});
            case ForeignBlock::Kind::Button: return drawCaption(place, block.caption, {.back = 0xB0B0B0});
            case ForeignBlock::Kind::Line: return write(place, repeated(u'\u2500', place.width), {});
            case ForeignBlock::Kind::Panel: return drawFrame(place, block.caption);
            case ForeignBlock::Kind::Other: return drawFrame(place, block.className);
        }
    }

    void drawFrame(const Rect& place, std::u16string_view title) {
        const std::u16string edge = repeated(u'\u2500', place.width - 2);
        const std::u16string side = u"\u2502" + repeated(u' ', place.width - 2) + u"\u2502";
        for (int row = 0; row < place.height; ++row) write({place.left, place.top + row, place.width, 1}, side, {});
        write({place.left, place.top, place.width, 1}, u"\u250C" + edge + u"\u2510", {});
        write({place.left, place.top + place.height - 1, place.width, 1}, u"\u2514" + edge + u"\u2518", {});
        drawCaption({place.left + 2, place.top, std::min(columnsOf(title), place.width - 4), 1}, title, {});
    }

    void drawCaption(const Rect& place, std::u16string_view caption, const Ink& ink) {
        const ReadCaption read = readCaption(caption);
        const std::size_t mnemonic = std::min(read.mnemonic, read.text.size());
        write(place, read.text, {ink.fore, ink.back, std::u16string_view(read.text).substr(mnemonic, 1), A_UNDERLINE});
    }

    void drawControl(PlacedControl& control, const Rect& parent) {
        const WidgetSet widgets = control.control().widgets();
        const Rect origin{parent.left + control.bounds().left, parent.top + control.bounds().top};
        const auto placeOf = [&](const Widget& widget) { return cellsOf(widget.bounds(), origin); };
        const auto inkOf = [](const TextualWidget& it) {
            return Ink{it.enabled() ? it.foreColor() : colors::SystemGrayText};
        };
        if (const Label* const label = widgets.label) drawCaption(placeOf(*label), label->caption(), inkOf(*label));
        if (const UpDown* const spinner = widgets.upDown; spinner != nullptr && spinner->visible())
            write(placeOf(*spinner), u"\u2195", {});
        if (const PictureBox* const box = widgets.picture) drawBar(box->picture(), placeOf(*box), inkOf(*box));
        if (const FieldWidget* const field = widgets.field; field != nullptr && field->visible())
            drawField(widgets, placeOf(*field), inkOf(*field), Window_->focused() == &control);
    }

    void drawBar(const BarPicture& bar, const Rect& place, Ink ink) {
        std::u16string text = repeated(u' ', bar.textLeft / Cell.width) + bar.text;
        text.resize(static_cast<std::size_t>(place.width), u' ');
        ink.marked = std::u16string_view(text).substr(0, static_cast<std::size_t>(bar.barWidth / Cell.width));
        write(place, text, ink);
    }

    void drawField(const WidgetSet& widgets, Rect place, Ink ink, bool focused) {
        ink.back = widgets.field->backColor();
        if (const CheckBox* const box = widgets.checkBox) {
            drawCaption(place, std::u16string{u'[', u" x-"[box->value()], u']', u' '} + box->caption(), ink);
            if (focused) placeCursor(place.top, place.left + 1);
        }
        if (const ComboBox* const box = widgets.comboBox) {
            if (box->isDropped()) drawList(*box, place);
            write({place.left + --place.width, place.top, 1, 1}, u"\u25BE", ink);
        }
        if (widgets.entry != nullptr) drawText(*widgets.entry, place, ink, focused);
    }

    void drawList(const ComboBox& box, const Rect& place) {
        const int columns = std::max(place.width, box.droppedWidth() * ClassicTwipsPerPixel / Cell.width);
        const int rows = std::min(ComboBox::RowsOfList, box.items().size());
        const int first = std::clamp(box.highlighted() - rows / 2, 0, box.items().size() - rows);
        for (int row = 0; row < rows; ++row) {
            std::u16string item = u"\u2502" + std::u16string(box.items().item(first + row));
            item += repeated(u' ', columns - columnsOf(item));
            Ink ink{.back = colors::SystemWindow};
            if (first + row == box.highlighted()) ink.marked = item;
            write({place.left, place.top + 1 + row, columns, 1}, item, ink);
        }
        placeCursor(place.top + rows, place.left);
    }

    void drawText(const TextEntry& box, const Rect& place, const Ink& ink, bool focused) {
        const std::u16string shown = box.shownText();
        const Selection selection = focused ? box.selection() : Selection{};
        const auto selected = std::u16string_view(shown).substr(selection.start(), selection.length());
        TextLine line = box.buffer().lineAt(selection.caret);
        for (int above = 1; above < place.height && line.start > 0; ++above) line = box.buffer().lineAt(line.start - 2);
        write(place, {}, ink);
        for (int row = 0; row < place.height; ++row, line = box.buffer().lineAt(line.next)) {
            auto text = std::u16string_view(shown).substr(line.start, line.end - line.start);
            const bool holdsCaret = focused && selection.caret >= line.start && selection.caret <= line.end;
            int column = holdsCaret ? columnsOf(text.substr(0, selection.caret - line.start)) : 0;
            while (column > 0 && column >= place.width) column -= wcwidth(takeShown(text));
            write({place.left, place.top + row, place.width, 1}, text, {ink.fore, ink.back, selected});
            if (holdsCaret) placeCursor(place.top + row, place.left + column);
            if (line.isLast) break;
        }
    }

    std::unique_ptr<FILE, int (*)(FILE*)> Nowhere_;
    SCREEN* Terminal_ = nullptr;
    WINDOW* Sheet_ = nullptr;
    FormWindow* Window_ = nullptr;
    int Top_ = 0;
    int Left_ = 0;
};

}  // namespace

std::unique_ptr<Onlooker> makeTerminal(bool seen) { return std::make_unique<Terminal>(seen); }

}  // namespace kel::terminal
