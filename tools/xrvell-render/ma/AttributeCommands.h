#pragma once
#include <maya/MObject.h>
#include <maya/MPlug.h>

#include <string>
#include <vector>

#include "AttributeWriter.h"
#include "MaTokenizer.h"
#include "ReadContext.h"

namespace xrvell {

// setAttr and addAttr. Values of attributes the host models are converted and stored; those of
// attributes it keeps without a model (see mayahost::keepsAttribute) are kept as written.
class AttributeCommands {
public:
    explicit AttributeCommands(ReadContext& context);

    bool setAttr(const MaStatement& statement);
    bool addAttr(const MaStatement& statement);

private:
    bool target(const std::string& text, MObject* node, PlugText* plug);
    bool setCompound(const MObject& node, const PlugText& plug, const std::vector<MPlug>& children,
                     const SetAttrValue& value);
    bool keep(const MObject& node, const PlugText& plug, const SetAttrValue& value);

    ReadContext& context;
};

}  // namespace xrvell
