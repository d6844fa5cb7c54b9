#include "stability/stl_mesh.h"

#include <assimp/scene.h>

#include <assimp/Importer.hpp>
#include <fstream>
#include <iterator>
#include <utility>

#include "stability/mesh_check.h"

namespace tolmar::stability {

namespace {

StlRead refused(std::string why) {
  StlRead r;
  r.error = std::move(why);
  return r;
}

}  // namespace

StlRead readStlBytes(const std::string& bytes, int langue) {
  const bool fr = langue == 0;
  Assimp::Importer importer;
  // The "stl" hint keeps every other format out: a file is read as STL or
  // not at all.
  const aiScene* scene =
      bytes.empty() ? nullptr : importer.ReadFileFromMemory(bytes.data(), bytes.size(), 0, "stl");
  if (!scene)
    return refused(fr ? "Ce fichier n'est pas un fichier STL (ni ASCII ni binaire)."
                      : "This file is not an STL file (neither ASCII nor binary).");
  HullMesh raw;
  for (unsigned k = 0; k < scene->mNumMeshes; ++k) {
    const aiMesh* mesh = scene->mMeshes[k];
    const int base = static_cast<int>(raw.vertices.size());
    for (unsigned v = 0; v < mesh->mNumVertices; ++v) {
      const aiVector3D& p = mesh->mVertices[v];
      raw.vertices.push_back({p.x, p.y, p.z});
    }
    for (unsigned f = 0; f < mesh->mNumFaces; ++f) {
      const aiFace& face = mesh->mFaces[f];
      if (face.mNumIndices != 3) continue;
      raw.triangles.push_back({base + static_cast<int>(face.mIndices[0]),
                               base + static_cast<int>(face.mIndices[1]),
                               base + static_cast<int>(face.mIndices[2])});
      raw.tags.push_back({});
    }
  }
  StlRead r;
  r.mesh = weldedMesh(raw);
  const MeshCheck check = checkClosedMesh(r.mesh);
  if (!check.ok()) return refused(check.message(langue));
  if (r.mesh.volume() < 0)
    for (auto& t : r.mesh.triangles) std::swap(t[1], t[2]);
  return r;
}

StlRead readStlMesh(const std::filesystem::path& file, int langue) {
  std::ifstream in(file, std::ios::binary);
  if (!in) return refused((langue == 0 ? "Impossible de lire " : "Cannot read ") + file.string());
  const std::string bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
  if (in.bad())
    return refused((langue == 0 ? "Impossible de lire " : "Cannot read ") + file.string());
  return readStlBytes(bytes, langue);
}

}  // namespace tolmar::stability
