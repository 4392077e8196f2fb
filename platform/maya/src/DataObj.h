#pragma once
#include <maya/MString.h>

#include "Object.h"

namespace mayahost {
namespace detail {

struct StringDataObj : Object {
    MString value;
};

}  // namespace detail
}  // namespace mayahost
