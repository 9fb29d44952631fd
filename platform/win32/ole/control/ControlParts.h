#pragma once

#include <memory>

#include "platform/win32/ole/com/ComObject.h"

namespace kel::win32::ole {

class OleControl;

/// Some of the interfaces through which hosts work a control.
class ControlInterfaces {
public:
    virtual ~ControlInterfaces() = default;

    /// The interface of this identifier, not counted; nullptr where it is none of these.
    virtual void* find(REFIID iid) = 0;
};

template <class... Interfaces>
class ControlPart : public Part<Interfaces...>, public ControlInterfaces {
public:
    explicit ControlPart(OleControl& control) : Part<Interfaces...>(control), Control_(control) {}

protected:
    OleControl& Control_;
};

/// The control as an object embedded in a host.
std::unique_ptr<ControlInterfaces> makeEmbeddedPart(OleControl& control);
/// What designers ask: property pages, names of values, headings.
std::unique_ptr<ControlInterfaces> makeDesignPart(OleControl& control);
/// The host's property dialog; where it has none, the system's in front of `parent`. Returns once it is closed.
HRESULT showProperties(OleControl& control, HWND parent);
/// Keys, ambient properties and the pausing of events.
std::unique_ptr<ControlInterfaces> makeKeysPart(OleControl& control);
/// The control's window, as its container moves it and as its frame talks to it while the user works in it.
std::unique_ptr<ControlInterfaces> makeInPlacePart(OleControl& control);
/// What a host may take for granted about its picture: VIEWSTATUS_OPAQUE and VIEWSTATUS_SOLIDBKGND.
inline constexpr DWORD ViewStatus = VIEWSTATUS_OPAQUE | VIEWSTATUS_SOLIDBKGND;
/// The control as a picture, shown or as data.
std::unique_ptr<ControlInterfaces> makePicturePart(OleControl& control);
/// The control's properties, in the host's own bag, a stream or a storage.
std::unique_ptr<ControlInterfaces> makePersistPart(OleControl& control);

}  // namespace kel::win32::ole
