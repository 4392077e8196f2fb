#pragma once

static_assert(sizeof(unsigned long) == 8, "interface ids are compared as 64-bit values");

constexpr unsigned long EXT_TEXTURE = 0x77780002;
constexpr unsigned long EXT_TEXTURE_FLOAT = 0x7782F8E5;
constexpr unsigned long EXT_TEXTURE_VECTOR = 0x7782F8E6;
constexpr unsigned long EXT_TEXTURE_TRANSFORM = 0x7782F8E9;
constexpr unsigned long EXT_TEXTURE_INT = 0x7782F8EA;
constexpr unsigned long EXT_RTTEX = 0x77CFFFA6;
constexpr unsigned long EXT_ANIMATEDPARAM = 0x7792855D;
constexpr unsigned long EXT_SETTABLE_PARAM = 0xBABADED3;
constexpr unsigned long EXT_CLONEABLE_PARAM = 0x77DE0EDC;
