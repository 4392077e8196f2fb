// The .vrscene text from a render record, byte for byte.
#include <gtest/gtest.h>

#include <stdlib.h>

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <limits>
#include <string>

#include "Files.h"
#include "OutputFile.h"
#include "VrsceneStream.h"
#include "VrsceneValue.h"
#include "VrsceneWriter.h"

namespace {

using vrayrender::RecordedValue;
using Kind = vrayrender::RecordedValue::Kind;

RecordedValue value(Kind kind) {
    RecordedValue v;
    v.kind = kind;
    return v;
}
RecordedValue integer(int n) {
    RecordedValue v = value(Kind::Int);
    v.intValue = n;
    return v;
}
RecordedValue real(float f) {
    RecordedValue v = value(Kind::Float);
    v.number = f;
    return v;
}
RecordedValue text(const std::string& s) {
    RecordedValue v = value(Kind::String);
    v.text = s;
    return v;
}
RecordedValue list(std::vector<float> l) {
    RecordedValue v = value(Kind::FloatList);
    v.list = std::move(l);
    return v;
}
RecordedValue triple(Kind kind, float x, float y, float z) {
    RecordedValue v = value(kind);
    v.vector[0] = x;
    v.vector[1] = y;
    v.vector[2] = z;
    return v;
}
RecordedValue dbl(double d) {
    RecordedValue v = value(Kind::Double);
    v.number = d;
    return v;
}

std::string written(const RecordedValue& v) {
    std::string out;
    xrvell::VrsceneValue::append(v, out);
    return out;
}

TEST(VrsceneValueTest, WritesEachKindSoItReadsBack) {
    const struct {
        RecordedValue value;
        const char* expected;
    } cases[] = {
        {integer(-7), "-7"},
        {integer(-2147483647 - 1), "-2147483648"},
        // The value as it was typed, not the float's nine digits (0.800000012).
        {real(3.0f), "3"},
        {real(0.8f), "0.8"},
        {real(0.1f), "0.1"},
        {real(1.0f / 3.0f), "0.33333334"},
        {real(-0.0f), "-0"},
        {real(16777217.0f), "16777216"},
        // Whole numbers and small fractions are written out as %g would, not as 1e+05.
        {real(100000.0f), "100000"},
        {real(-7.0f), "-7"},
        {real(999999936.0f), "999999936"},
        {real(12000000.0f), "12000000"},
        {real(0.0001f), "0.0001"},
        {real(1e-5f), "1e-05"},
        {real(1e-10f), "1e-10"},
        {real(1e9f), "1e+09"},
        {real(3.4028235e38f), "3.4028235e+38"},
        {dbl(0.1), "0.1"},
        {dbl(1.0 / 3.0), "0.3333333333333333"},
        {dbl(0.1 + 0.2), "0.30000000000000004"},
        {dbl(123456789012.0), "123456789012"},
        {dbl(9007199254740992.0), "9007199254740992"},
        {dbl(1e15), "1e+15"},
        {dbl(-0.0), "-0"},
        {dbl(-4503599627370497.0), "-4503599627370497"},
        {dbl(-1e-300), "-1e-300"},
        {triple(Kind::Vector, 1.0f, -2.5f, 0.1f), "Vector(1,-2.5,0.1)"},
        {triple(Kind::Color, 0.0f, 0.5f, 1.0f), "Color(0,0.5,1)"},
        {list({}), "ListFloat()"},
        {list({1.25f, 0.2f}), "ListFloat(1.25,0.2)"},
        {text(""), "\"\""},
        {text("a\"b\\c;d"), "\"a\\\"b\\\\c;d\""},
        {text("a\nb\tc\rd"), "\"a\\nb\\tc\\rd\""},
        {text("\x01"
              "7\x1b[0m\x7f"),
         "\"\\0017\\033[0m\\177\""},
        {text("f\xC3\xBCr"), "\"f\xC3\xBCr\""},
        {value(Kind::None), ""},
    };
    for (const auto& c : cases) EXPECT_EQ(written(c.value), c.expected);
}

// Floats of every size and sign, a sample of all their bit patterns, and doubles near them.
TEST(VrsceneValueTest, NumbersReadBackToTheSameBits) {
    for (uint64_t bits = 0; bits <= 0xFFFFFFFFu; bits += 65521) {
        float f;
        const uint32_t pattern = static_cast<uint32_t>(bits);
        std::memcpy(&f, &pattern, sizeof f);
        if (std::isnan(f)) continue;
        std::string out;
        xrvell::VrsceneValue::appendFloat(f, out);
        const float back = std::strtof(out.c_str(), nullptr);
        EXPECT_EQ(std::memcmp(&back, &f, sizeof f), 0) << out;
        const double d = static_cast<double>(f) * (1.0 + 1e-12);
        out.clear();
        xrvell::VrsceneValue::appendDouble(d, out);
        const double readDouble = std::strtod(out.c_str(), nullptr);
        EXPECT_EQ(std::memcmp(&readDouble, &d, sizeof d), 0) << out;
    }
}

// Reads a written string back the way a C-style parser does: "\n", "\t", "\r", "\"", "\\"
// and three octal digits.
std::string readBack(const std::string& written) {
    std::string text;
    for (size_t i = 1; i + 1 < written.size(); ++i) {
        if (written[i] != '\\') {
            text += written[i];
            continue;
        }
        const char next = written[++i];
        if (next >= '0' && next <= '7') {
            text += static_cast<char>((next - '0') * 64 + (written[i + 1] - '0') * 8 +
                                      (written[i + 2] - '0'));
            i += 2;
        } else {
            text += next == 'n' ? '\n' : next == 't' ? '\t' : next == 'r' ? '\r' : next;
        }
    }
    return text;
}

// Every byte but NUL (which a Maya string cannot hold), next to a digit that an escape must
// not swallow, stays on one line and reads back as it was.
TEST(VrsceneValueTest, StringsKeepToOneLineAndReadBack) {
    for (int byte = 1; byte < 256; ++byte) {
        const std::string original = std::string("a") + static_cast<char>(byte) + "7";
        const std::string out = written(text(original));
        EXPECT_EQ(out.find_first_of("\n\r"), std::string::npos) << byte;
        EXPECT_EQ(readBack(out), original) << byte << ": " << out;
    }
}

vrayrender::RecordedParameter parameter(const std::string& name,
                                        std::vector<RecordedValue> values) {
    vrayrender::RecordedParameter made;
    made.name = name;
    made.first = values.front();
    made.later.assign(values.begin() + 1, values.end());
    return made;
}

vrayrender::RenderRecord twoFrames() {
    vrayrender::RecordedInstance first{"bridgeA", 1, true, {}};
    // density held through the frame; minROI spelled out per sample but never changed.
    first.parameters = {
        parameter("sampleGenerator", {list({0.75f}), list({0.75f, 1.25f})}),
        parameter("density", {real(2.5f)}),
        parameter("file", {text("a.0000.xvc"), text("a.0001.xvc")}),
        parameter("broken", {value(Kind::None)}),
        parameter("minROI", {triple(Kind::Vector, 0, 1, 2), triple(Kind::Vector, 0, 1, 2)}),
    };
    vrayrender::RecordedInstance second{
        "ns:bridgeB", 2, true, {parameter("verbosity", {integer(2)})}};
    vrayrender::RecordedFrame frame1{1.0, {0.75, 1.25}, {first, second}};
    vrayrender::RecordedFrame frame2{2.0, {1.75, 2.25}, {}};
    vrayrender::RenderRecord record;
    record.frames = {frame1, frame2};
    return record;
}

TEST(VrsceneWriterTest, WritesEachFrameWithItsInstancesInOrder) {
    vrayrender::RenderSettings settings;
    settings.startFrame = 1;
    settings.endFrame = 2;
    settings.motionBlur = {true, 0.5, 0.0, 2};
    const std::string expected =
        "// V-Ray scene: what the xrVellVRay plugin received, written by xrvell-render\n"
        "// Scene: shots/a b.ma\n"
        "// Frames 1 to 2, step 1; motion blur on: duration 0.5, interval centre 0, 2 geometry "
        "samples\n"
        "\n"
        "// Frame 1: geometry samples at 0.75, 1.25\n"
        "xrVellVRay bridgeA {\n"
        "  sampleGenerator=interpolate((0.75, ListFloat(0.75)), (1.25, ListFloat(0.75,1.25)));\n"
        "  density=2.5;\n"
        "  file=interpolate((0.75, \"a.0000.xvc\"), (1.25, \"a.0001.xvc\"));\n"
        "  // broken: no value the renderer can read\n"
        "  minROI=Vector(0,1,2);\n"
        "}\n"
        "xrVellVRay ns:bridgeB {\n"
        "  verbosity=2;\n"
        "}\n"
        "\n"
        "// Frame 2: geometry samples at 1.75, 2.25\n";
    EXPECT_EQ(xrvell::VrsceneWriter("shots/a b.ma", settings).write(twoFrames()), expected);
}

TEST(VrsceneWriterTest, ANewlineInTheScenePathDoesNotEndTheHeaderComment) {
    EXPECT_EQ(xrvell::VrsceneWriter("shots/a\nxrVellVRay x {\r}.ma", {}).write({}),
              "// V-Ray scene: what the xrVellVRay plugin received, written by xrvell-render\n"
              "// Scene: shots/a\\nxrVellVRay x {\\r}.ma\n"
              "// Frames 1 to 1, step 1; motion blur off\n");
}

TEST(VrsceneWriterTest, HeaderSaysWhenBlurIsOff) {
    vrayrender::RenderSettings settings;
    settings.startFrame = -2.5;
    settings.endFrame = 10;
    settings.byFrame = 0.5;
    EXPECT_EQ(xrvell::VrsceneWriter("s.ma", settings).write({}),
              "// V-Ray scene: what the xrVellVRay plugin received, written by xrvell-render\n"
              "// Scene: s.ma\n"
              "// Frames -2.5 to 10, step 0.5; motion blur off\n");
}

// Written as the renderer hands it on, in pieces of any size, the file is the same text.
TEST(VrsceneWriterTest, AStreamWritesTheSameTextInPiecesOfAnySize) {
    char name[] = "/tmp/xrvell-stream-XXXXXX";
    ASSERT_NE(mkdtemp(name), nullptr);
    const std::filesystem::path directory = name;
    const vrayrender::RenderRecord record = twoFrames();
    const xrvell::VrsceneWriter writer("s.ma", {});
    for (size_t chunk : {size_t{1}, size_t{100}, size_t{1} << 30}) {
        const std::filesystem::path path = directory / ("out" + std::to_string(chunk));
        xrvell::OutputFile output(path.string());
        std::string error;
        ASSERT_TRUE(output.open(&error)) << error;
        std::vector<double> framesWritten;
        bool started = false;
        xrvell::VrsceneStream stream(
            writer, output, chunk,
            [&](const vrayrender::RecordedFrame& frame) { framesWritten.push_back(frame.frame); },
            started);
        stream.start();
        for (const vrayrender::RecordedFrame& frame : record.frames) {
            stream.frameStarted(frame);
            for (const vrayrender::RecordedInstance& instance : frame.instances)
                stream.instanceDone(frame, instance);
            EXPECT_TRUE(stream.frameDone(frame));
        }
        EXPECT_TRUE(stream.flush()) << stream.failure();
        ASSERT_TRUE(output.commit(&error)) << error;
        EXPECT_EQ(contentsOf(path), writer.write(record)) << "pieces of " << chunk;
        EXPECT_EQ(framesWritten, (std::vector<double>{1.0, 2.0}));
        EXPECT_FALSE(started) << "a temporary file is not the target";
    }
    std::filesystem::remove_all(directory);
}

}  // namespace
