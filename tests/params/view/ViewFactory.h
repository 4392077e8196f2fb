#pragma once

#include <string>
#include <vector>

// Builds real parameter objects for the renderer-side view. The result is the
// object's address as the renderer receives it (its parameter interface), typeless
// so that the view and the plug-in's declarations never meet in one file.
namespace viewfactory {

void* newIntParam(const char* name, int value);
void* newFloatParam(const char* name, float value);
void* newVectorParam(const char* name);
void* newStringParam(const char* name);
void* newFloatListParam(const char* name);

// Objects whose every operation appends its own name to recordedCalls().
void* newRecordingParameter();
void* newRecordingSettable();
void* newRecordingTexture();
void* newRecordingFloatTexture();
void* newRecordingVectorTexture();
void* newRecordingAnimated();
// Real classes with only their look-alike operations noting: a parameter base's two
// bump gradients; setInt and setBool of the integer, float and float-list classes.
void* newRecordingBumpGradients();
void* newRecordingIntSetters();
void* newRecordingFloatSetters();
void* newRecordingFloatListSetters();
std::vector<std::string>& recordedCalls();

}  // namespace viewfactory
