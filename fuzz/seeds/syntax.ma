createNode transform -n "a";
	setAttr ".t" -type "double3" ( "x" + "y" );
setAttr "a.tx" "unterminated
