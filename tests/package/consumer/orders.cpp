#include <KelControls8/HeadlessForm.h>

#include <cstdio>
#include <stdexcept>

#if __has_include("values/Text.h") || __has_include("forms/Form.h")
#error "more than the public headers is to be found"
#endif

namespace {

std::string refusal(void (*deed)(kel::HeadlessForm&), kel::HeadlessForm& form) {
    try {
        deed(form);
    } catch (const std::exception& error) {
        return error.what();
    }
    return "nothing is refused";
}

}  // namespace

/// Works the form file on its command line: examples/forms/order-line.frm.
int main(int count, char** arguments) {
    kel::HeadlessOptions options;
    options.locale = "de-DE";
    options.today = kel::Date{41348};
    kel::HeadlessForm form(count > 1 ? arguments[1] : "", options);
    std::printf("%s is a %s\n", form.controls().at(1).c_str(), form.className("numQuantity").c_str());
    form.set("numPrice", "Value", 1099.5);
    form.set("txtArticle", "Text", u"elbow");
    for (const std::string& line : form.takeEvents()) std::printf("%s\n", line.c_str());
    for (const std::string& line : form.play("focus numQuantity\nkey Up 2\nfocus numPrice\nshow numPrice"))
        std::printf("%s\n", line.c_str());
    std::printf("%s\n", kel::describe(form.get("numquantity", "value")).c_str());
    std::printf("%s\n", refusal([](kel::HeadlessForm& f) { f.set("numPrice", "Decimals", u"two"); }, form).c_str());
    std::printf("%s\n", refusal([](kel::HeadlessForm& f) { f.get("numPriec", "Value"); }, form).c_str());
    std::printf("%s\n", refusal([](kel::HeadlessForm& f) { f.play("tab\nhop"); }, form).c_str());
    std::printf("%s\n", refusal([](kel::HeadlessForm&) { kel::HeadlessForm none("none.frm"); }, form).c_str());
}
