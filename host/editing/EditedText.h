#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>

#include "host/editing/EditBuffer.h"

namespace kel {

/// The text of a widget that is the same on every home: what code reads and sets goes to the editor. `Base` is the
/// home's own kind of widget; its constructor takes what follows the editor's arguments.
template <class Base, class Editor>
class EditedText : public Base {
public:
    const std::u16string& text() const override { return buffer().text(); }
    void setText(std::u16string_view text) override { Editor_.setText(text); }
    bool textEquals(std::u16string_view other) const override { return buffer().text() == other; }
    std::int32_t textLength() const override { return static_cast<std::int32_t>(buffer().text().size()); }

    std::int32_t selStart() const override { return static_cast<std::int32_t>(buffer().selection().start()); }
    void setSelStart(std::int32_t position) override { Editor_.setSelStart(position); }
    std::int32_t selLength() const override { return static_cast<std::int32_t>(buffer().selection().length()); }
    void setSelLength(std::int32_t length) override { Editor_.setSelLength(length); }
    std::u16string selText() const override { return std::u16string(buffer().selectedText()); }
    void setSelText(std::u16string_view text) override { Editor_.setSelText(text); }

    bool locked() const override { return Editor_.locked(); }
    void setLocked(bool locked) override { Editor_.setLocked(locked); }
    std::int32_t maxLength() const override { return Editor_.maxLength(); }
    void setMaxLength(std::int32_t units) override { Editor_.setMaxLength(units); }

protected:
    /// What the editor is made of, then what the base is.
    template <class... EditorArguments, class... BaseArguments>
    explicit EditedText(std::tuple<EditorArguments...> editor, BaseArguments&&... base)
        : Base(std::forward<BaseArguments>(base)...), Editor_(std::make_from_tuple<Editor>(std::move(editor))) {}

    const EditBuffer& buffer() const { return Editor_.buffer(); }

    Editor Editor_;
};

}  // namespace kel
