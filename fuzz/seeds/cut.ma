//Maya ASCII 2022 scene
//Name: cut.ma
requires "xrVellMaya" "1.0";
requires "xrVellVRayMaya" "1.0";
createNode xrVellMaya -n "f";
createNode xrVellMayaVRay -n "b";
connectAttr "f.od" "b.v