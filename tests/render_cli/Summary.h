#pragma once
// The summary line that ends every run of the tool, checked apart from what comes before it.
#include <gtest/gtest.h>

#include <cctype>
#include <string>

// Whether the text is the time taken as the summary writes it: "0.25 s\n".
inline bool isSeconds(const std::string& text) {
    const size_t dot = text.find('.');
    if (dot == 0 || dot == std::string::npos || text.compare(dot + 3, std::string::npos, " s\n"))
        return false;
    for (size_t i = 0; i < dot + 3; ++i)
        if (i != dot && !std::isdigit(static_cast<unsigned char>(text[i]))) return false;
    return true;
}

// Everything before the summary line, and the summary line checked on its own.
inline std::string withoutSummary(const std::string& err, const std::string& summary) {
    const size_t last = err.rfind("xrvell-render: ");
    EXPECT_NE(last, std::string::npos) << err;
    if (last == std::string::npos) return err;
    const std::string line = err.substr(last);
    const std::string expected = "xrvell-render: " + summary + ", ";
    EXPECT_TRUE(line.compare(0, expected.size(), expected) == 0 &&
                isSeconds(line.substr(expected.size())))
        << line;
    return err.substr(0, last);
}
