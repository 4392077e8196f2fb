#include "Object.h"

namespace mayahost {
namespace detail {

void retain(Object* object) {
    if (object) ++object->references;
}

void release(Object* object) {
    if (object && --object->references == 0) delete object;
}

MObject Access::handle(Object* object) {
    MObject result;
    result.fObj = object;
    retain(object);
    return result;
}

}  // namespace detail
}  // namespace mayahost
