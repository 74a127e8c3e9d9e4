#include "com/TypeInfo.h"

#include "com/Errors.h"
#include "com/Module.h"

namespace Tarnwise {

ComRef<ITypeLib> OwnTypeLibrary() {
  ComRef<ITypeLib> library;
  Check(LoadTypeLibEx(ModulePath().c_str(), REGKIND_NONE, library.Receive()), "The type library can't be loaded.");
  return library;
}

ComRef<ITypeInfo> OwnTypeInfo(REFGUID type) {
  ComRef<ITypeInfo> info;
  Check(OwnTypeLibrary()->GetTypeInfoOfGuid(type, info.Receive()), "The type library lacks a type.");
  return info;
}

}  // namespace Tarnwise
