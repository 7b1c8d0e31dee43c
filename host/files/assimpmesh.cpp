// SPDX-License-Identifier: MIT
#include "host/files/assimpmesh.h"

#include "host/files/safefile.h"

#include <assimp/Importer.hpp>
#include <assimp/config.h>
#include <assimp/scene.h>

#include <QFile>
#include <QFileInfo>

#include <vector>

namespace orvane {

namespace {

Vector vectorOf(const aiVector3D &v)
{
    return {v.x, v.y, v.z};
}

struct PlacedPart
{
    const aiMesh *mesh;
    aiMatrix4x4 toWorld;
};

// In the order of the node tree, each node before its children.
std::vector<PlacedPart> placedParts(const aiScene &scene)
{
    struct PlacedNode
    {
        const aiNode *node;
        aiMatrix4x4 toWorld;
    };
    std::vector<PlacedPart> parts;
    std::vector<PlacedNode> open = {{scene.mRootNode, scene.mRootNode->mTransformation}};
    while (!open.empty()) {
        const PlacedNode placed = open.back();
        open.pop_back();
        for (unsigned i = 0; i < placed.node->mNumMeshes; ++i)
            parts.push_back({scene.mMeshes[placed.node->mMeshes[i]], placed.toWorld});
        for (unsigned i = placed.node->mNumChildren; i-- > 0;) {
            const aiNode *child = placed.node->mChildren[i];
            open.push_back({child, placed.toWorld * child->mTransformation});
        }
    }
    return parts;
}

class PartCollector
{
public:
    PartCollector(PolygonMesh *mesh, bool severalParts) : m_mesh(mesh), m_several(severalParts) {}

    bool add(const PlacedPart &part)
    {
        ++m_part;
        const aiMesh &mesh = *part.mesh;
        const int firstVertex = m_mesh->positions.size();
        const int firstUV = mesh.HasTextureCoords(0) ? m_mesh->uvs.size() : -1;
        for (unsigned v = 0; v < mesh.mNumVertices; ++v) {
            const Vector place = vectorOf(part.toWorld * mesh.mVertices[v]);
            const Vector uv = firstUV < 0 ? Vector() : vectorOf(mesh.mTextureCoords[0][v]);
            if (!place.IsFinite() || !uv.IsFinite())
                return fail(QStringLiteral("vertex %1: a coordinate is not a finite number; "
                                           "expected finite numbers")
                                .arg(v + 1));
            m_mesh->positions.append(place);
            if (firstUV >= 0)
                m_mesh->uvs.append({uv.x, uv.y});
        }
        const bool mirrored = part.toWorld.Determinant() < 0.0f;
        for (unsigned face = 0; face < mesh.mNumFaces; ++face) {
            if (!addFace(mesh, face, firstVertex, firstUV, mirrored))
                return false;
        }
        return true;
    }

    const QString &error() const { return m_error; }

private:
    bool addFace(const aiMesh &mesh, unsigned number, int firstVertex, int firstUV, bool mirrored)
    {
        const aiFace &face = mesh.mFaces[number];
        if (face.mNumIndices < 3)
            return true; // points and lines
        for (unsigned i = 0; i < face.mNumIndices; ++i) {
            const unsigned index = face.mIndices[mirrored && i > 0 ? face.mNumIndices - i : i];
            if (index >= mesh.mNumVertices)
                return fail(QStringLiteral("face %1 refers to vertex %2, but there are %3 vertices")
                                .arg(number + 1)
                                .arg(qint64(index) + 1)
                                .arg(mesh.mNumVertices));
            m_mesh->addCorner(firstVertex + int(index), firstUV < 0 ? -1 : firstUV + int(index));
        }
        m_mesh->endPolygon();
        return true;
    }

    bool fail(const QString &text)
    {
        m_error = m_several ? QStringLiteral("part %1: %2.").arg(m_part).arg(text)
                            : text + QLatin1Char('.');
        return false;
    }

    PolygonMesh *m_mesh;
    bool m_several;
    int m_part = 0; // counted from 1
    QString m_error;
};

// These formats share a vertex among its faces, and assimp leaves it so. Texture coordinates undo
// that: who writes them there has to repeat the vertices along a seam.
bool keepsVertices(const QString &path, const PolygonMesh &mesh)
{
    const QString suffix = QFileInfo(path).suffix().toLower();
    return (suffix == QLatin1String("ply") || suffix == QLatin1String("off")) && mesh.uvs.isEmpty();
}

} // namespace

bool readAssimpMesh(const QString &path, PolygonMesh *mesh, QString *error)
{
    Assimp::Importer importer;
    importer.SetPropertyBool(AI_CONFIG_IMPORT_NO_SKELETON_MESHES, true);
    const aiScene *scene = importer.ReadFile(QFile::encodeName(path).constData(), 0);
    if (!scene || !scene->mRootNode) {
        const QString reason = QString::fromUtf8(importer.GetErrorString())
                                   .replace(path, QFileInfo(path).fileName())
                                   .simplified();
        *error =
            reason.isEmpty() || reason.startsWith(QLatin1String("No suitable reader"))
                ? QStringLiteral("this is no mesh file; expected OBJ, PLY, STL, glTF or another "
                                 "mesh format.")
                : QStringLiteral("it cannot be read as a mesh: %1.").arg(withoutFullStop(reason));
        return false;
    }
    const std::vector<PlacedPart> parts = placedParts(*scene);
    PartCollector collector(mesh, parts.size() > 1);
    for (const PlacedPart &part : parts) {
        if (collector.add(part))
            continue;
        *error = collector.error();
        return false;
    }
    if (!keepsVertices(path, *mesh))
        joinEqualPlaces(mesh);
    return true;
}

} // namespace orvane
