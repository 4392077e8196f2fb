//Maya ASCII 2022 scene
//Name: character.ma
//Last modified: Mon, Nov 23, 2026 10:12:40 AM
//Codeset: UTF-8
requires maya "2022";
requires -nodeType "xrVellMaya" -dataType "xrVellMayaData" "xrVellMaya" "1.0";
requires -nodeType "xrVellMayaVRay" "xrVellVRayMaya" "1.0";
currentUnit -l centimeter -a degree -t film;
fileInfo "application" "maya";
fileInfo "product" "Maya 2022";
fileInfo "version" "2022";
fileInfo "cutIdentifier" "202205171752-c25c06f306";
fileInfo "osv" "Linux 5.14.0-284.11.1.el9_2.x86_64 #1 SMP PREEMPT_DYNAMIC x86_64";
fileInfo "UUID" "2B4D6F81-3A5C-4E7F-9012-A3B4C5D6E7F8";
createNode transform -s -n "persp";
	rename -uid "0F1E2D3C-4B5A-4697-8879-6A5B4C3D2E1F";
	setAttr ".v" no;
	setAttr ".t" -type "double3" 28 21 28 ;
createNode transform -n "fur";
	rename -uid "4A6C8E0A-2B4D-4F6A-8C0E-2A4C6E8A0B2D";
	setAttr ".t" -type "double3" 0 4.5 0 ;
createNode xrVellMaya -n "furShape" -p "fur";
	rename -uid "6C8E0A2C-4D6F-4A8C-9E0A-4C6E8A0C2D4F";
	setAttr -k off ".v";
	setAttr ".vb" 1;
	setAttr ".rd" 2.5;
	setAttr ".rw" 0.80000001192092896;
	setAttr ".rl" 1.25;
	setAttr ".vsl" 0.25;
	setAttr ".isp" -type "string" "/studio/assets/char/textures";
	setAttr ".cfp" -type "string" "/studio/assets/char/cache/furShape.####.xvc";
	setAttr ".oroi" yes;
	setAttr ".rnx" -2.5;
	setAttr ".rny" 0;
	setAttr ".rnz" -1;
	setAttr ".rxx" 2.5;
	setAttr ".rxy" 3;
	setAttr ".rxz" 1;
createNode transform -n "furVRay";
	rename -uid "8E0A2C4E-6F8A-4C0E-8A2C-6E8A0C2E4F6A";
createNode xrVellMayaVRay -n "furVRayShape" -p "furVRay";
	rename -uid "0A2C4E6A-8A0C-4E2A-9C4E-8A0C2E4A6B8C";
	setAttr -k off ".v";
select -ne :time1;
	setAttr ".o" 1;
	setAttr ".unw" 1;
connectAttr "furShape.od" "furVRayShape.vid";
connectAttr ":time1.o" "furVRayShape.time";
// End of character.ma
