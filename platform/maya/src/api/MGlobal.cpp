#include <maya/MGlobal.h>

#include <cstdio>

#include "../HostState.h"

namespace mayahost {
namespace detail {

// Collected for the host's users and echoed the way Maya's batch mode prints them.
void showMessage(Message::Channel channel, const std::string& text) {
    state().messages.push_back(Message{channel, text});
    switch (channel) {
        case Message::Channel::Error:
            std::fprintf(stderr, "// Error: %s\n", text.c_str());
            break;
        case Message::Channel::Warning:
            std::fprintf(stderr, "// Warning: %s\n", text.c_str());
            break;
        case Message::Channel::Info:
            std::fprintf(stderr, "%s\n", text.c_str());
            break;
        case Message::Channel::Perror:
            break;  // MStatus::perror prints its own line
    }
}

}  // namespace detail
}  // namespace mayahost

OPENMAYA_NAMESPACE_OPEN

void MGlobal::displayError(const MString& theError) {
    mayahost::detail::showMessage(mayahost::Message::Channel::Error, theError.asChar());
}

void MGlobal::displayWarning(const MString& theWarning) {
    mayahost::detail::showMessage(mayahost::Message::Channel::Warning, theWarning.asChar());
}

void MGlobal::displayInfo(const MString& theMessage) {
    mayahost::detail::showMessage(mayahost::Message::Channel::Info, theMessage.asChar());
}

OPENMAYA_NAMESPACE_CLOSE
