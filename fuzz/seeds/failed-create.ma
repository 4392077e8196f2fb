requires "xrVellMaya" "1.0";
createNode xrVellMaya -n "f";
createNode xrVellMaya -n "bad name";
	setAttr ".rd" 2;
	addAttr -ln "note" -dt "string";
select -ne nobody;
	setAttr ".rw" 1;
select -ne f;
	setAttr ".rw" 1;
