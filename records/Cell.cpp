#include "records/Cell.h"

#include "values/Coercion.h"
#include "values/Text.h"

namespace kel::records {

namespace {

struct Writer {
    std::u16string operator()(Null) const { return {}; }
    std::u16string operator()(std::int64_t number) const { return widen(std::to_string(number)); }
    std::u16string operator()(double number) const { return shortestNumber(number); }
    std::u16string operator()(const std::u16string& text) const { return text; }
    std::u16string operator()(const Bytes& bytes) const {
        return u"(" + widen(std::to_string(bytes.bytes.size())) + u" bytes)";
    }
};

}  // namespace

std::u16string textOf(const Cell& cell) { return std::visit(Writer{}, cell); }

}  // namespace kel::records
