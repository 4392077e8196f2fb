#pragma once
#include <string>
#include <string_view>

namespace xrvell {

// Maya opens each file it writes with "//Maya ASCII VERSION scene" and "//Name: NAME" and closes
// it with "// End of NAME". A file that opens so but lacks the closing line was cut short, and a
// cut file loses its connections first, which would render defaults without an error. The
// closing line is matched to the header's name, not the file's, so a renamed file is whole; a
// closing line that is itself cut short is missing.
class TruncationCheck {
public:
    // The warning for a file Maya wrote that lacks its closing line, with the last line that holds
    // text in `line`; empty for a whole file or one Maya did not write.
    static std::string problem(std::string_view text, int* line);
};

}  // namespace xrvell
