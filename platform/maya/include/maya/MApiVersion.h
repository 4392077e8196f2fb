#pragma once
// Every translation unit that includes this defines the plug-in's exported API version record,
// unless MNoVersionString is defined first: exactly one source of a plug-in should define it.
#ifndef MNoVersionString
extern "C" {
__attribute__((visibility("default"))) char MApiVersion[] = "20220000";
}
#endif
