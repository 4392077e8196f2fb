requires -nodeType "VRaySettingsNode" "vrayformaya" "5";
currentUnit -t ntsc;
createNode camera -s -n "perspShape";
select -ne :defaultRenderGlobals;
	setAttr ".fs" 1;
setAttr -k on ".x" -type "double3" -1 .5 2e3 ;
connectAttr -f ":time1.o" "a.b";
