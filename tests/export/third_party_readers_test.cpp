// Every DXF and VRML golden file, those of the sub-folders included, read
// back by independent readers: dxflib (DXF) and Coin3D's VRML97 reader.
// They must see the same polylines, vertices, layers and faces as the
// file's own records say.
#include <Inventor/SoDB.h>
#include <Inventor/SoInput.h>
#include <Inventor/VRMLnodes/SoVRMLCoordinate.h>
#include <Inventor/VRMLnodes/SoVRMLDirectionalLight.h>
#include <Inventor/VRMLnodes/SoVRMLIndexedFaceSet.h>
#include <Inventor/VRMLnodes/SoVRMLViewpoint.h>
#include <Inventor/actions/SoSearchAction.h>
#include <Inventor/nodes/SoSeparator.h>
#include <dxflib/dl_creationadapter.h>
#include <dxflib/dl_dxf.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <map>

#include "dxf_text_reader.h"
#include "golden_file.h"
#include "vrml_text_reader.h"

namespace tolmar {
namespace {

namespace fs = std::filesystem;

struct LayerCount {
  int polylines = 0;
  int vertices = 0;
  bool operator==(const LayerCount&) const = default;
};

class DxfCollector : public DL_CreationAdapter {
 public:
  void addPolyline(const DL_PolylineData& d) override {
    ++layers[getAttributes().getLayer()].polylines;
    current = getAttributes().getLayer();
    flags.push_back(d.flags);
    vertices.emplace_back();
  }
  void addVertex(const DL_VertexData& d) override {
    ++layers[current].vertices;
    if (!vertices.empty()) vertices.back().push_back({d.x, d.y, d.z});
  }
  std::map<std::string, LayerCount> layers;
  std::vector<int> flags;
  std::vector<std::vector<test::Vertex>> vertices;
  std::string current;
};

std::vector<fs::path> goldenFiles(const std::vector<std::string>& extensions) {
  std::vector<fs::path> files;
  for (const auto& e : fs::recursive_directory_iterator(fs::path(TOLMAR_GOLDEN) / "export")) {
    if (!e.is_regular_file()) continue;
    std::string ext = e.path().extension().string();
    std::transform(ext.begin(), ext.end(), ext.begin(), ::tolower);
    if (std::find(extensions.begin(), extensions.end(), ext) != extensions.end())
      files.push_back(e.path());
  }
  std::sort(files.begin(), files.end());
  return files;
}

TEST(ThirdPartyReaders, DxflibSeesEveryPolylineAndVertex) {
  const auto files = goldenFiles({".dxf"});
  ASSERT_GE(files.size(), 3U);
  ASSERT_TRUE(std::any_of(files.begin(), files.end(), [](const fs::path& f) {
    return f.parent_path().filename() == "2D";
  })) << "the pram's files in tests/golden/export/pram are read too";
  for (const auto& f : files) {
    SCOPED_TRACE(fs::relative(f, TOLMAR_GOLDEN).string());
    DxfCollector c;
    DL_Dxf dxf;
    ASSERT_TRUE(dxf.in(f.string(), &c));

    const auto own = test::readPolylines(test::readBytes(f.string()));
    std::map<std::string, LayerCount> expected;
    for (const auto& p : own) {
      auto& l = expected[std::to_string(p.layer)];
      ++l.polylines;
      l.vertices += static_cast<int>(p.v.size());
    }
    EXPECT_EQ(c.layers, expected);
    ASSERT_EQ(c.vertices.size(), own.size());
    for (std::size_t i = 0; i < own.size(); ++i) {
      EXPECT_EQ(c.flags[i] & 8, 8) << "polyline " << i << " is not 3D";
      ASSERT_EQ(c.vertices[i].size(), own[i].v.size());
      for (std::size_t j = 0; j < own[i].v.size(); ++j) {
        EXPECT_EQ(c.vertices[i][j].x, own[i].v[j].x);
        EXPECT_EQ(c.vertices[i][j].y, own[i].v[j].y);
        EXPECT_EQ(c.vertices[i][j].z, own[i].v[j].z);
      }
    }
  }
}

// Coin's own idiom reads a found path as an SoFullPath (the same object, a
// subclass that adds no data) to reach hidden children; UBSan's type check
// would flag that cast, so it is off here.
template <typename T>
__attribute__((no_sanitize("vptr"))) std::vector<T*> findAll(SoNode* root) {
  SoSearchAction search;
  search.setType(T::getClassTypeId());
  search.setInterest(SoSearchAction::ALL);
  search.setSearchingAll(TRUE);
  search.apply(root);
  std::vector<T*> found;
  const SoPathList& paths = search.getPaths();
  for (int i = 0; i < paths.getLength(); ++i)
    found.push_back(static_cast<T*>(static_cast<SoFullPath*>(paths[i])->getTail()));
  return found;
}

TEST(ThirdPartyReaders, CoinReadsTheVrmlWorld) {
  SoDB::init();
  const auto files = goldenFiles({".wrl"});
  ASSERT_GE(files.size(), 2U);  // the default hull's and the pram's
  for (const auto& f : files) {
    SCOPED_TRACE(fs::relative(f, TOLMAR_GOLDEN).string());
    const auto own = test::readFaceSets(test::readBytes(f.string()));
    ASSERT_GE(own.size(), 1U);  // the bottom at the least
    SoInput in;
    ASSERT_TRUE(in.openFile(f.c_str()));
    EXPECT_TRUE(in.isFileVRML2());
    SoSeparator* root = SoDB::readAll(&in);
    ASSERT_NE(root, nullptr);
    root->ref();
    EXPECT_EQ(findAll<SoVRMLViewpoint>(root).size(), 5U);
    EXPECT_EQ(findAll<SoVRMLDirectionalLight>(root).size(), 3U);
    const auto faces = findAll<SoVRMLIndexedFaceSet>(root);
    ASSERT_EQ(faces.size(), own.size());  // one a plate
    for (std::size_t n = 0; n < faces.size(); ++n) {
      SoVRMLIndexedFaceSet* ifs = faces[n];
      auto* coord = static_cast<SoVRMLCoordinate*>(ifs->coord.getValue());
      ASSERT_NE(coord, nullptr);
      const int points = static_cast<int>(own[n].points.size());
      // A strip of triangles between the two edges of the plate, and a
      // closing quadrilateral without its -1.
      EXPECT_EQ(coord->point.getNum(), points);
      EXPECT_EQ(ifs->coordIndex.getNum(), (points - 2) * 4 + 4);
      EXPECT_FALSE(ifs->solid.getValue());
      ASSERT_EQ(ifs->coordIndex.getNum(), static_cast<int>(own[n].coordIndex.size()));
      int faceCount = 0, maxIndex = -1;
      for (int i = 0; i < ifs->coordIndex.getNum(); ++i) {
        const int k = ifs->coordIndex[i];
        EXPECT_EQ(k, own[n].coordIndex[static_cast<std::size_t>(i)]) << "index " << i;
        if (k < 0) ++faceCount;
        maxIndex = std::max(maxIndex, k);
      }
      EXPECT_EQ(faceCount, points - 2);
      EXPECT_EQ(maxIndex, points - 1);
      for (int i = 0; i < coord->point.getNum(); ++i) {
        const SbVec3f p = coord->point[i];
        const auto& q = own[n].points[static_cast<std::size_t>(i)];
        EXPECT_TRUE(std::isfinite(p[0]) && std::isfinite(p[1]) && std::isfinite(p[2]));
        for (int c = 0; c < 3; ++c)
          EXPECT_EQ(p[c], static_cast<float>(q[static_cast<std::size_t>(c)])) << "point " << i;
      }
    }
    root->unref();
  }
}

}  // namespace
}  // namespace tolmar
