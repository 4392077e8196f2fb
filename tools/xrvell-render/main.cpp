// Command-line host: loads the bridge plug-in into the stand-in Maya host.
#include <maya/MFnData.h>
#include <maya/MFnNumericData.h>
#include <maya/MFnUnitAttribute.h>
#include <mayahost/Host.h>

#include <cstdio>
#include <cstring>
#include <string>

namespace {

const char* kUsage =
    "usage: xrvell-render --list-registrations [--plugin PATH]\n"
    "  Loads the xrVellVRayMaya plug-in into the stand-in host and lists what it registered.\n";

std::string describeType(const mayahost::AttributeInfo& a) {
    switch (a.kind) {
        case mayahost::AttributeKind::Numeric:
            return a.numericType == MFnNumericData::kAddr  ? "address"
                   : a.numericType == MFnNumericData::kInt ? "int"
                                                           : "numeric";
        case mayahost::AttributeKind::Typed:
            if (a.dataType == MFnData::kString) return "string";
            {
                char text[32];
                std::snprintf(text, sizeof text, "data 0x%X", a.typeId);
                return text;
            }
        case mayahost::AttributeKind::Unit:
            return a.unitType == MFnUnitAttribute::kTime ? "time" : "unit";
    }
    return "?";
}

int listRegistrations(const std::string& plugin) {
    const mayahost::PluginLoad load = mayahost::loadPlugin(plugin);
    if (!load) {
        std::fprintf(stderr, "xrvell-render: %s\n", load.error.c_str());
        return 1;
    }
    const mayahost::PluginIdentity identity = mayahost::pluginIdentity(plugin);
    std::printf("plug-in %s\n  vendor \"%s\", version \"%s\", API %s\n", plugin.c_str(),
                identity.vendor.c_str(), identity.version.c_str(), load.apiVersion.c_str());
    mayahost::NodeTypeInfo type;
    if (!mayahost::findNodeType("xrVellMayaVRay", &type)) {
        std::fprintf(stderr, "xrvell-render: the plug-in registered no xrVellMayaVRay node\n");
        return 1;
    }
    std::printf("node type %s  id 0x%X  classification \"%s\"%s\n", type.name.c_str(), type.id,
                type.classification.c_str(), type.hasUICreator ? "  with viewport UI" : "");
    for (const std::string& name : type.attributes) {
        mayahost::AttributeInfo a;
        mayahost::findAttribute(type.name, name, &a);
        std::printf("  %-22s %-5s %s\n", a.longName.c_str(), a.shortName.c_str(),
                    describeType(a).c_str());
    }
    for (const auto& relation : mayahost::attributeAffects(type.name))
        std::printf("  %s affects %s\n", relation.first.c_str(), relation.second.c_str());
    mayahost::reset();
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    std::string plugin = XRVELL_DEFAULT_PLUGIN;
    bool list = false;
    for (int i = 1; i < argc; ++i) {
        if (!std::strcmp(argv[i], "--list-registrations")) {
            list = true;
        } else if (!std::strcmp(argv[i], "--plugin") && i + 1 < argc) {
            plugin = argv[++i];
        } else if (!std::strcmp(argv[i], "-h") || !std::strcmp(argv[i], "--help")) {
            std::fputs(kUsage, stdout);
            return 0;
        } else {
            std::fprintf(stderr, "xrvell-render: unknown option '%s'\n%s", argv[i], kUsage);
            return 2;
        }
    }
    if (!list) {
        std::fputs(kUsage, stderr);
        return 2;
    }
    return listRegistrations(plugin);
}
