#include "platform/model/mdl_Repository.h"

#include <string>

#include "platform/base/nex_Exception.h"

void mdl_Repository::RefuseMissingKey(const cow_String& key) const {
  nex_ThrowCmd("There is no \"" + key.str() + "\" in " + RepositoryName());
}
