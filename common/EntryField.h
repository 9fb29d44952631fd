#pragma once

#include <array>
#include <optional>

#include "common/FieldLayout.h"
#include "common/FieldState.h"
#include "common/KeyAnswer.h"
#include "host/Container.h"
#include "host/System.h"
#include "host/Widgets.h"
#include "library/Control.h"

namespace kel {

/// How the entry fields differ in what they have in common.
struct EntryKind {
    LayoutRule layout{};
    bool hasCaptionFont = true;         ///< the caption has a font of its own, not the field's
    bool disablesContainer = true;      ///< not its widgets alone
    bool captionWithinControl = false;  ///< the width of a caption is cut to the control's when it is put
};

class EntryControl;

/// What every field for texts, numbers, dates, times and choices has and does alike: a caption, a box beside it, with a
/// spinner or without, and the properties, colours and rules that go with them. What the text stands for is the
/// control's own affair.
class EntryField final : private UpDownListener {
public:
    /// `control`, whose part it is, and `kind` outlive it.
    EntryField(ControlHost& host, EntryControl& control, const EntryKind& kind);

    /// Of a control that is an `EntryControl`.
    static EntryField& of(Object& control);
    static const EntryField& of(const Object& control);

    ControlHost& host() { return Host_; }
    const ControlHost& host() const { return Host_; }
    const RegionalSettings& region() const { return Host_.region; }
    void takeRegion(const RegionalSettings& region) { Host_.region = region; }
    Label& label() { return Label1_; }

    /// A box of the control's, which owns it. The first is the one that shows; a further one takes over what is kept in
    /// the first, and waits.
    void add(TextEntry& box);
    /// From now on the field is this box, laid out as `layout` says; `showActive` shows it in the place of the other.
    void activate(TextEntry& box, const LayoutRule& layout);
    void showActive();
    TextEntry& box() const { return *Active_; }

    /// Its presses, the wheel and the keys that step are steps of the control's.
    void addSpinner() { UpDown1_.emplace(Host_.widgets, static_cast<UpDownListener&>(*this)); }

    /// Tells the container that the saved property which `Put` sets has been set.
    template <auto Put>
    void report() {
        Host_.container.propertyChanged(model().rowPutBy<Put>());
        mayDiffer();
    }
    /// The same for a change of a bound property that comes from the user: asks before it, and tells after it.
    template <auto Put>
    bool mayChange() const {
        return Host_.container.mayChange(model().rowPutBy<Put>());
    }
    template <auto Put>
    void tellChanged() const {
        Host_.container.boundChanged(model().rowPutBy<Put>());
        mayDiffer();
    }

    /// While it lives the control is on its way from one state to the next; who follows it is told of the last one.
    class Deed {
    public:
        explicit Deed(const EntryField& field) : Field_(field) { ++Field_.DeedDepth_; }
        ~Deed() {
            --Field_.DeedDepth_;
            Field_.mayDiffer();
        }
        Deed(const Deed&) = delete;
        Deed& operator=(const Deed&) = delete;

    private:
        const EntryField& Field_;
    };
    /// Tells who follows the control, but for a deed that is not over.
    void mayDiffer() const {
        if (DeedDepth_ == 0) Host_.container.standingMayDiffer();
    }

    // ---- Members of the controls

    const std::u16string& get_Caption() const { return Label1_.caption(); }
    /// The caption that is there already reports nothing.
    void put_Caption(const std::u16string& caption);
    std::int16_t get_CaptionWidth() const { return static_cast<std::int16_t>(Label1_.bounds().width); }
    /// A negative width is ignored.
    void put_CaptionWidth(std::int16_t twips);
    bool get_Enabled() const { return Kind_.disablesContainer ? Host_.container.enabled() : Active_->enabled(); }
    void put_Enabled(bool enabled);
    bool get_FontBold() const { return Label1_.fontBold(); }
    void put_FontBold(bool bold);
    bool get_InsertMode() const { return InsertMode_; }
    void put_InsertMode(bool insert);
    bool get_Locked() const { return Boxes_[0]->locked(); }
    void put_Locked(bool locked);
    bool get_Mandatory() const { return Mandatory_; }
    void put_Mandatory(bool mandatory);
    std::int16_t get_MaxLength() const { return static_cast<std::int16_t>(Boxes_[0]->maxLength()); }
    /// A negative length is ignored.
    void put_MaxLength(std::int16_t units);
    void Refresh() { Active_->refresh(); }
    bool get_SelectOnFocus() const { return SelectOnFocus_; }
    void put_SelectOnFocus(bool select);
    void TooltipSet(const std::u16string& tooltip);
    bool get_UpDown() const { return UpDown_; }
    void put_UpDown(bool shown);

    // ---- What the container tells

    /// A control newly placed in a designer goes by its name in the container.
    void initNew();
    void load(PropertyBag& bag);
    /// False where there is nothing to lay out: while properties are read, or before the control has a size.
    bool layOut();
    void show();
    WidgetSet widgets();

    /// What the caption needs (twips), for a container that measures it: it is so wide until a width is put, or again
    /// when that is taken back. Nobody is told.
    void fitCaption(std::int32_t twips);
    bool isCaptionFitted() const { return FittedCaption_.has_value() && !CaptionWidthPut_; }
    void takeBackCaptionWidth() { CaptionWidthPut_ = false; }
    /// Where there is room for it.
    std::int32_t wantedCaptionWidth() const { return isCaptionFitted() ? *FittedCaption_ : Label1_.bounds().width; }

    // ---- State that a control sets without a report

    void initInsertMode(bool insert) { InsertMode_ = insert; }
    void initUpDown(bool shown);
    void colorCaption() { Label1_.setForeColor(captionColor(Mandatory_)); }

    // ---- Focus

    /// Where select-on-focus goes by the Tab key: all by Tab, nothing by a click.
    void selectByTab();
    void colorOnGotFocus() { Active_->setBackColor(backOnGotFocus(Host_.settings, get_Locked()).color); }
    void colorOnExit() { applyBack(backOnExitFocus(Host_.settings, get_Locked())); }

    // ---- Keys, spinner and messages

    /// What every field makes of a key that goes down: Up and Down step where the field `steps`; the Insert key alone
    /// switches overwriting on and off.
    static KeyAnswer answerToKey(std::int16_t keyCode, Modifiers shift, bool steps);
    /// Does what a key comes to. `key`, a key code or a character, is
    /// swallowed where the box does not get it.
    template <class Key>
    void carryOut(KeyAnswer answer, Key& key) {
        if (!reachesBox(answer)) key = 0;
        carryOut(answer);
    }

    /// A typed character replaces the next one.
    bool overwrites() const { return !InsertMode_ && !get_Locked(); }

    /// The focus is on its way from a press of the spinner, until the control forgets it.
    bool comesFromSpinner() const { return FromSpinner_; }
    void forgetSpinner() { FromSpinner_ = false; }

    /// A step a notch, where there is a spinner.
    void turn(std::int32_t notches);

    /// Tells the user what is wrong with the text, a message of the control's class in these words, and puts the focus
    /// back into it.
    void complain(const MessageRow& message, std::u16string_view words);

private:
    const ClassModel& model() const;
    void UpDown1_Change() override;
    void carryOut(KeyAnswer answer);
    template <class Action>
    void forEachBox(Action action) {
        for (TextEntry* const box : Boxes_)
            if (box != nullptr) action(*box);
    }
    LayoutRule layout() const;
    void applyBack(const BackChange& change);
    void applyStateLook();

    ControlHost Host_;
    EntryControl& Control_;
    const EntryKind& Kind_;
    Label Label1_;
    std::optional<UpDown> UpDown1_;
    std::array<TextEntry*, 2> Boxes_{};
    TextEntry* Active_ = nullptr;
    LayoutRule Layout_;

    bool InsertMode_ = false;
    bool Mandatory_ = true;
    bool SelectOnFocus_ = false;
    bool UpDown_ = false;
    bool Shown_ = false;
    bool CaptionWidthPut_ = false;
    bool FromSpinner_ = false;
    std::optional<std::int32_t> FittedCaption_;  ///< none where no container measures it
    std::int16_t LoadingDepth_ = 0;
    mutable std::int16_t DeedDepth_ = 0;
    Color CommonBack_ = colors::SystemWindow;  ///< the last ground that every box was given
};

/// A control that is an entry field, as the rows of its members and its container see it.
class EntryControl : public Control {
public:
    virtual EntryField& entry() = 0;
    const EntryField& entry() const { return const_cast<EntryControl*>(this)->entry(); }
    /// A person wants the next value, up (+1) or down (-1).
    virtual void step(int /*direction*/) {}

    void Resize() override { entry().layOut(); }
    void RegionChanged(const RegionalSettings& region) override { entry().takeRegion(region); }
    void Show() override { entry().show(); }
    void ReadProperties(PropertyBag& bag) override { entry().load(bag); }
    void WriteProperties(PropertyBag& bag) const override;
    WidgetSet widgets() override { return entry().widgets(); }
    Standing standing() final;

protected:
    /// The text as it stands.
    virtual bool isValid() = 0;
    virtual bool differsFromOriginal() const = 0;
    virtual std::optional<NumberRange> range() const { return std::nullopt; }
    virtual std::optional<NumberRange> moment() const { return std::nullopt; }
};

}  // namespace kel
