// The legacy viewport's value classes and the geometry types they use.
#include <maya/MBoundingBox.h>
#include <maya/MDagPath.h>
#include <maya/MDrawRequestQueue.h>
#include <maya/MMaterial.h>
#include <maya/MMatrix.h>
#include <maya/MSelectionList.h>
#include <maya/MSelectionMask.h>

#include "FurScene.h"

TEST(ViewportClasses, TheQueueIsFirstInFirstOut) {
    MDrawRequestQueue queue;
    EXPECT_TRUE(queue.isEmpty());
    for (int token = 1; token <= 3; ++token) {
        MDrawRequest request;
        request.setToken(token);
        queue.add(request);
    }
    MDrawRequestQueue copy(queue);
    for (int token = 1; token <= 3; ++token) EXPECT_EQ(queue.remove().token(), token);
    EXPECT_TRUE(queue.isEmpty());
    EXPECT_EQ(queue.remove().token(), 0);
    EXPECT_FALSE(copy.isEmpty());
}

TEST(ViewportClasses, ARequestKeepsItsColourForOneTable) {
    MDrawRequest request;
    EXPECT_EQ(request.color(M3dView::kActiveColors), -1);
    request.setColor(4, M3dView::kDormantColors);
    EXPECT_EQ(request.color(M3dView::kDormantColors), 4);
    EXPECT_EQ(request.color(M3dView::kActiveColors), -1);
}

TEST(ViewportClasses, EnumeratorsHaveMayasValues) {
    EXPECT_EQ(M3dView::kBoundingBox, 0);
    EXPECT_EQ(M3dView::kPoints, 4);
    EXPECT_EQ(M3dView::kActiveAffected, 10);
    EXPECT_EQ(M3dView::kNoStatus, 11);
    EXPECT_EQ(M3dView::kDormantColors, 2);
    EXPECT_EQ(M3dView::kTemplateColor, 5);
    EXPECT_EQ(M3dView::kBackgroundColor, 6);
    EXPECT_EQ(M3dView::kDisplayMeshes, 4);
    EXPECT_EQ(MSelectionMask::kSelectNurbsSurfaces, 11);
}

TEST(ViewportClasses, ADefaultMaterialDoesNotEvaluate) {
    MMaterial material;
    M3dView view;
    bool transparent = true;
    EXPECT_EQ(material.evaluateMaterial(view, MDagPath()), MStatus::kFailure);
    EXPECT_EQ(material.getHasTransparency(transparent), MStatus::kFailure);
    EXPECT_TRUE(transparent);
    EXPECT_FALSE(material.materialIsTextured());
}

TEST(ViewportClasses, MaskTypesAddUp) {
    MSelectionMask mask(MSelectionMask::kSelectNurbsSurfaces);
    EXPECT_TRUE(mask.intersects(MSelectionMask::kSelectNurbsSurfaces));
    EXPECT_FALSE(mask.intersects(MSelectionMask::kSelectNurbsCurves));
    mask.addMask(MSelectionMask::kSelectNurbsCurves);
    EXPECT_TRUE(mask.intersects(MSelectionMask::kSelectNurbsCurves));
}

TEST(ViewportClasses, BoxesStartEmptyAndTransformByTheirCorners) {
    MBoundingBox box;
    EXPECT_FALSE(box.contains(MPoint()));
    box.transformUsing(MMatrix::identity);
    EXPECT_FALSE(box.contains(MPoint()));

    box = MBoundingBox(MPoint(1, 2, 3), MPoint(3, 4, 5));
    EXPECT_EQ(box.center(), MPoint(2, 3, 4));
    double quarterTurn[4][4] = {{0, 1, 0, 0}, {-1, 0, 0, 0}, {0, 0, 1, 0}, {10, 0, 0, 1}};
    box.transformUsing(MMatrix(quarterTurn));
    EXPECT_EQ(box.min(), MPoint(6, 1, 3));
    EXPECT_EQ(box.max(), MPoint(8, 3, 5));
    EXPECT_EQ(MPoint(1, 2, 3, 0) * MMatrix(quarterTurn), MPoint(-2, 1, 3, 0));
}

class SelectionLists : public HostTest {};

TEST_F(SelectionLists, MergingSkipsAPathAlreadyThere) {
    MDagPath path;
    ASSERT_EQ(MDagPath::getAPathTo(mayahost::createNode("mesh"), path), MStatus::kSuccess);
    MSelectionList list;
    EXPECT_EQ(list.add(MDagPath()), MStatus::kInvalidParameter);
    list.add(path);
    list.add(path, MObject::kNullObj, false);
    EXPECT_EQ(list.length(), 2u);
    list.add(path, MObject::kNullObj, true);
    EXPECT_EQ(list.length(), 2u);
    MDagPath first;
    ASSERT_EQ(list.getDagPath(0, first), MStatus::kSuccess);
    EXPECT_TRUE(first == path);
    EXPECT_EQ(list.getDagPath(2, first), MStatus::kInvalidParameter);
}
