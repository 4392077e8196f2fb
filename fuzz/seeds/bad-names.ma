requires "xrVellMaya" "1.0";
createNode transform -n "fur";
	setAttr ".t" -type "matrix" 1 0 0 0 0 1 0 0 0 0 1 0 0 0 0 1;
	setAttr ".t" -type "double2" 7 8;
	setAttr ".r" 1;
createNode xrVellMaya -n "fur Mane} {x=1;" -p "fur";
createNode xrVellMaya -n "1fur//x" -p "fur";
createNode xrVellMaya -n "ns::furShape" -p "fur";
