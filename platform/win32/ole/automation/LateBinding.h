#pragma once

#include "platform/win32/ole/automation/MemberAccess.h"

namespace kel::win32::ole {

/// Names of members, or of one member and its parameters, to identifiers; as IDispatch has it.
HRESULT idsOfNames(const ClassModel& model, REFIID iid, LPOLESTR* names, UINT count, DISPID* ids);

/// One late-bound call, as IDispatch has it.
HRESULT invoke(const MemberAccess& access, DISPID id, REFIID iid, LCID locale, WORD flags, DISPPARAMS* arguments,
               VARIANT* result, EXCEPINFO* exception, UINT* argumentError);

}  // namespace kel::win32::ole
