requires "xrVellMaya" "1.0";
createNode transform -n "fur";
createNode xrVellMaya -n "furShape" -p "fur";
	setAttr ".rd" -type "string" "2";
