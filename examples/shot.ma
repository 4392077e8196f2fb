//Maya ASCII 2022 scene
//Name: shot.ma
//Last modified: Mon, Nov 23, 2026 10:31:05 AM
//Codeset: UTF-8
file -rdi 1 -ns "charA" -rfn "charARN" -op "v=0;" -typ "mayaAscii" "character.ma";
file -rdi 1 -ns "charB" -rfn "charBRN" -op "v=0;" -typ "mayaAscii" "character.ma";
file -r -ns "charA" -dr 1 -rfn "charARN" -op "v=0;" -typ "mayaAscii" "character.ma";
file -r -ns "charB" -dr 1 -rfn "charBRN" -op "v=0;" -typ "mayaAscii" "character.ma";
requires maya "2022";
requires -nodeType "xrVellMaya" -dataType "xrVellMayaData" "xrVellMaya" "1.0";
requires -nodeType "xrVellMayaVRay" "xrVellVRayMaya" "1.0";
currentUnit -l centimeter -a degree -t film;
fileInfo "application" "maya";
fileInfo "product" "Maya 2022";
fileInfo "version" "2022";
fileInfo "cutIdentifier" "202205171752-c25c06f306";
fileInfo "osv" "Linux 5.14.0-284.11.1.el9_2.x86_64 #1 SMP PREEMPT_DYNAMIC x86_64";
fileInfo "UUID" "9D8C7B6A-5F4E-4D3C-8B2A-1F0E9D8C7B6A";
createNode transform -s -n "persp";
	rename -uid "1A2B3C4D-5E6F-4A7B-8C9D-0E1F2A3B4C5D";
	setAttr ".v" no;
	setAttr ".t" -type "double3" 14 9 22 ;
createNode reference -n "charARN";
	rename -uid "3C4D5E6F-7A8B-4C9D-9E0F-1A2B3C4D5E6F";
	setAttr ".ed" -type "dataReferenceEdits" 
		"charARN"
		"charARN" 0
		"charARN" 2
		2 "|charA:fur" "translate" " -type \"double3\" -3 4.5 0"
		2 "|charA:fur|charA:furShape" "cacheFilePattern" " -type \"string\" \"/shows/demo/sh010/cache/charA/furShape.####.xvc\"";
	setAttr ".ptag" -type "string" "";
lockNode -l 1 ;
createNode reference -n "charBRN";
	rename -uid "5E6F7A8B-9C0D-4E1F-8A2B-3C4D5E6F7A8B";
	setAttr ".ed" -type "dataReferenceEdits" 
		"charBRN"
		"charBRN" 0
		"charBRN" 4
		2 "|charB:fur" "translate" " -type \"double3\" 3 4.5 0"
		2 "|charB:fur|charB:furShape" "renderDensity" " 6"
		2 "|charB:fur|charB:furShape" "renderWidth" " 0.5"
		2 "|charB:fur|charB:furShape" "cacheFilePattern" " -type \"string\" \"/shows/demo/sh010/cache/charB/furShape.####.xvc\"";
	setAttr ".ptag" -type "string" "";
lockNode -l 1 ;
select -ne :time1;
	setAttr ".o" 1;
	setAttr ".unw" 1;
// End of shot.ma
