// The types of the component's own type library, which is part of its file: no registration is needed to find it.
#pragma once

#include "runtime/windows/ComRef.h"

#include <oleauto.h>

namespace Tarnwise {

ComRef<ITypeLib> OwnTypeLibrary();
ComRef<ITypeInfo> OwnTypeInfo(REFGUID type);

}  // namespace Tarnwise
