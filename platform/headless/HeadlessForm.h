#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "values/Export.h"
#include "values/Variant.h"

namespace kel {

/// What a form in memory goes by.
struct HeadlessOptions {
    std::string locale = "en-GB";     ///< language-REGION of a built-in region
    std::optional<Date> today;        ///< the day it is; left out: the machine's
    std::optional<double> timeOfDay;  ///< seconds since midnight, at which the clock stands; left out: the machine's
    std::int32_t twipsPerPixel = 15;  ///< of the screen that there is not: 15 at 96 dots per inch, 1 to 1440
};

/// A classic form file (.frm) opened in memory. Its controls behave as they do on the screen and need no display:
///
///     kel::HeadlessForm form("order.frm");
///     form.set("qty", "Value", 12.5);
///     form.play("focus qty\nkey Up\ntab");
///     assert(form.get("qty", "Value") == kel::Variant(13.5));
///
/// Names of controls and members match whatever the case of their ASCII letters; an element of a control array is
/// "name(index)". Text in `std::string` is UTF-8. A control or a member that there is not, or a value that does not
/// fit, throws std::invalid_argument, which names it. What is wrong in a file throws a std::runtime_error that says
/// "FILE:LINE: what is wrong". For one thread at a time; forms share nothing.
class KELCONTROLS8_EXPORT HeadlessForm {
public:
    explicit HeadlessForm(const std::string& path, const HeadlessOptions& options = {});
    HeadlessForm(const HeadlessForm&) = delete;
    HeadlessForm& operator=(const HeadlessForm&) = delete;
    ~HeadlessForm();

    /// The names of the controls, in the file's order.
    std::vector<std::string> controls() const;
    /// "KelText".
    std::string className(std::string_view control) const;

    /// Members by the names that `kelforms describe` lists. Arguments that are passed by reference come back changed.
    Variant get(std::string_view control, std::string_view member, std::vector<Variant> arguments = {}) const;
    void set(std::string_view control, std::string_view member, const Variant& value);
    Variant call(std::string_view control, std::string_view member, std::vector<Variant>& arguments);
    Variant call(std::string_view control, std::string_view member);

    /// Works the form as a person would: the commands of a play script, one a line. Gives what they print, events
    /// among them, in lines such as "event qty.Change". Lines that begin with ">" are passed over. A fault is in the
    /// file "script".
    std::vector<std::string> play(std::string_view script);

    /// The events, beeps and messages that `get`, `set` and `call` have brought about since the last call of this or of
    /// `play`, in the same words.
    std::vector<std::string> takeEvents();

    /// Writes the form with its properties as they are now; what did not change stands as it was.
    void save(const std::string& path) const;

private:
    class Session;
    std::unique_ptr<Session> Session_;
};

/// A value as a script writes it, for messages: "abc", 12.5, True, #2013-03-15#.
KELCONTROLS8_EXPORT std::string describe(const Variant& value);

}  // namespace kel
