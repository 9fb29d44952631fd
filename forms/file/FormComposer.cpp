#include "forms/file/FormComposer.h"

#include <algorithm>

#include "forms/file/FormEdit.h"
#include "forms/file/FormError.h"
#include "forms/file/FormReading.h"

namespace kel {

std::string FormComposer::compose() {
    if (Model_.encoding == FormEncoding::Utf8 || !settle(FormEncoding::Windows1252)) settle(FormEncoding::Utf8);
    addTexts();
    return render().value();
}

/// Tries an encoding; false when something cannot be said in it, or when its bytes happen to read as another.
bool FormComposer::settle(FormEncoding encoding) {
    Encoding_ = encoding;
    Texts_.clear();
    collectChangedTexts();
    const auto form = render();
    if (!form) return false;
    ReadAs_ = detectEncoding(*form);
    if (encoding == FormEncoding::Windows1252 && ReadAs_ == FormEncoding::Utf8) return false;
    collectMisreadTexts();
    return std::all_of(Texts_.begin(), Texts_.end(),
                       [this](const auto& text) { return encodeRecord(text.second, ReadAs_).has_value(); });
}

void FormComposer::collectChangedTexts() {
    for (const LineId line : Model_.liveLines()) {
        const FormModel::Edit* edit = Model_.editOf(line);
        const auto* text = edit == nullptr ? nullptr : std::get_if<std::u16string>(&edit->value);
        if (text != nullptr && needsRecord(*text)) Texts_[line] = *text;
    }
}

/// Texts in resource files are read by the encoding of the form. Where a new one would change what an old record
/// says, the text is written anew.
void FormComposer::collectMisreadTexts() {
    const auto readsClassic = [](FormEncoding encoding) { return encoding == FormEncoding::Windows1252; };
    if (readsClassic(ReadAs_) == readsClassic(Model_.encoding)) return;
    for (const LineId line : Model_.liveLines()) {
        const auto reference = referenceAt(Model_, line);
        if (!reference || !reference->isText) continue;
        try {
            const std::string bytes = readReferencedText(Model_, *reference);
            std::u16string text = decodeRecord(bytes, Model_.encoding);
            if (text != decodeRecord(bytes, ReadAs_)) Texts_[line] = std::move(text);
        } catch (const FormFault&) {
            continue;  // what cannot be read cannot be misread
        }
    }
}

void FormComposer::addTexts() {
    for (const auto& [line, text] : Texts_) Offsets_[line] = Resources_.addText(encodeRecord(text, ReadAs_).value());
}

/// Nothing when a character does not exist in the encoding.
std::optional<std::string> FormComposer::render() const {
    std::string form(*Model_.bytes, 0, Model_.markLength);
    form.reserve(Model_.bytes->size() + Model_.bytes->size() / 16);
    for (const LineId line : Model_.liveLines()) {
        const auto bytes = renderLine(line);
        if (!bytes) return std::nullopt;
        form.append(*bytes);
    }
    return form.append(transcode(std::string_view(*Model_.bytes).substr(Model_.codeStart), Model_.encoding, Encoding_));
}

std::optional<std::string> FormComposer::renderLine(LineId line) const {
    const auto text = Texts_.find(line);
    const FormModel::Edit* edit = Model_.editOf(line);
    std::u16string value;
    if (text != Texts_.end()) {
        const auto offset = Offsets_.find(line);
        value =
            writeFormValue(FormReference{Resources_.ownName(), offset == Offsets_.end() ? 0 : offset->second, true});
    } else if (edit != nullptr) {
        value = writeFormVariant(edit->value);
    } else {
        return transcode(Model_.wholeOf(line), Model_.encoding, Encoding_);
    }
    auto bytes = encode(headOfProperty(Model_, line) + value, Encoding_);
    if (bytes) bytes->append(Model_.lineEndOf(line));
    return bytes;
}

}  // namespace kel
