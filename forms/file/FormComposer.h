#pragma once

#include <map>
#include <optional>
#include <string>

#include "forms/file/FormModel.h"
#include "forms/file/FormResources.h"

namespace kel {

/// Makes the bytes of a form. Settles two things that hang together: the encoding, which nothing but the bytes
/// themselves tells a reader, and which texts go into the form's own resource file.
class FormComposer {
public:
    FormComposer(const FormModel& model, FormResources& resources) : Model_(model), Resources_(resources) {}

    std::string compose();

private:
    using LineId = FormModel::LineId;

    bool settle(FormEncoding encoding);
    void collectChangedTexts();
    void collectMisreadTexts();
    void addTexts();
    std::optional<std::string> render() const;
    std::optional<std::string> renderLine(LineId line) const;

    const FormModel& Model_;
    FormResources& Resources_;
    std::map<LineId, std::u16string> Texts_;      ///< that go into the resource file
    std::map<LineId, std::uint32_t> Offsets_;     ///< where they stand there
    FormEncoding Encoding_ = FormEncoding::Utf8;  ///< of the form
    FormEncoding ReadAs_ = FormEncoding::Utf8;    ///< what a reader takes it for
};

}  // namespace kel
