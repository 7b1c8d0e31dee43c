// SPDX-License-Identifier: MIT
#include "host/desktop/viewport/surfacerenderer.h"

#include "host/desktop/viewport/frame.h"
#include "host/desktop/viewport/meshoncard.h"
#include "host/desktop/viewport/viewoptions.h"

namespace orvane {

namespace {

const float SeeThrough = 0.48f;   // cover of a surface in x-ray
const float SourceDimming = 0.5f; // how far the source goes towards the background
const QColor Clay(196, 188, 178);
const QColor SelectedClay(214, 178, 132);
const QColor NewMesh(136, 178, 214);
const QColor SelectedNewMesh(190, 192, 176);

const char *const VertexSource = R"(#version 120
attribute vec3 position;
attribute vec3 normal;
uniform mat4 toClip;
uniform mat4 fromEye;
varying vec3 eyeNormal;
void main()
{
    // Normals go with the transposed inverse.
    eyeNormal = (vec4(normal, 0.0) * fromEye).xyz;
    gl_Position = toClip * vec4(position, 1.0);
}
)";

const char *const FragmentSource = R"(#version 120
uniform vec4 colour;
uniform float matcap;
uniform float dimming;
varying vec3 eyeNormal;

const vec3 Key = vec3(-0.469, 0.626, 0.623);
const vec3 Fill = vec3(0.842, 0.084, 0.533);
const vec3 Half = vec3(-0.260, 0.348, 0.901);

// A warm key lamp over the left shoulder, a cool fill from the right, sky and ground around.
vec3 lamps(vec3 n)
{
    float key = max(dot(n, Key) * 0.8 + 0.2, 0.0);
    float fill = max(dot(n, Fill) * 0.75 + 0.25, 0.0);
    vec3 around = mix(vec3(0.20, 0.19, 0.19), vec3(0.34, 0.36, 0.39), n.y * 0.5 + 0.5);
    float rim = pow(1.0 - clamp(n.z, 0.0, 1.0), 3.0) * (0.35 + 0.65 * max(n.y, 0.0));
    float gloss = pow(max(dot(n, Half), 0.0), 28.0);
    vec3 light = around + key * vec3(0.70, 0.67, 0.62) + fill * vec3(0.15, 0.18, 0.22);
    return colour.rgb * light + vec3(0.07) * gloss + vec3(0.10, 0.11, 0.13) * rim;
}

// Red wax: dark where the form turns away, a broad sheen above, a cool edge below.
vec3 wax(vec3 n)
{
    float facing = clamp(n.z, 0.0, 1.0);
    float above = dot(n, vec3(-0.3, 0.62, 0.725));
    vec3 body = mix(vec3(0.16, 0.05, 0.04), vec3(0.62, 0.30, 0.22), smoothstep(-0.35, 0.75, above));
    body = mix(body, vec3(0.86, 0.60, 0.48), smoothstep(0.62, 1.0, above) * 0.75);
    float gloss = pow(max(dot(n, normalize(vec3(-0.32, 0.5, 0.8))), 0.0), 60.0);
    float edge = pow(1.0 - facing, 4.0) * max(-n.y * 0.6 + n.x * 0.5 + 0.2, 0.0);
    return body * mix(vec3(1.0), colour.rgb * 1.35, 0.45) + vec3(0.30) * gloss
           + vec3(0.20, 0.24, 0.30) * edge;
}

void main()
{
    float size = length(eyeNormal);
    vec3 n = size > 0.0 ? eyeNormal / size : vec3(0.0, 0.0, 1.0);
    bool inner = !gl_FrontFacing;
    n = inner ? -n : n;
    vec3 lit = matcap > 0.5 ? wax(n) : lamps(n);
    lit = inner ? lit * vec3(0.52, 0.58, 0.70) : lit;
    gl_FragColor = vec4(mix(lit, vec3(0.21, 0.225, 0.25), dimming), colour.a);
}
)";

Matrix eyeToObject(const Frame &frame, const ShownMesh &mesh)
{
    Matrix matrix = mesh.toWorld * frame.camera.ViewMatrix();
    matrix.Invert();
    return matrix;
}

QColor colourOf(const ShownMesh &mesh)
{
    if (mesh.role == MeshRole::Over)
        return mesh.selected ? SelectedNewMesh : NewMesh;
    return mesh.selected ? SelectedClay : Clay;
}

void drawFaces(const Frame &frame, Shader &shader, MeshOnCard &card)
{
    if (frame.options.shading == Shading::Flat) {
        shader.SetPositions(card.flatPositions);
        shader.SetNormals(card.flatNormals);
        frame.gl.glDrawArrays(GL_TRIANGLES, 0, card.flatPositions.Count());
        return;
    }
    shader.SetPositions(card.positions);
    shader.SetNormals(card.normals);
    card.triangles.Bind();
    frame.gl.glDrawElements(GL_TRIANGLES, card.triangles.Count(), GL_UNSIGNED_INT, nullptr);
}

// The inner side of a new mesh lies in its source, which is drawn farther away than it is.
void drawMesh(const Frame &frame, Shader &shader, const ShownMesh &mesh)
{
    if (mesh.role == MeshRole::Over)
        frame.gl.glEnable(GL_CULL_FACE);
    frame.gl.glFrontFace(mesh.mirrored ? GL_CW : GL_CCW);
    drawFaces(frame, shader, *mesh.card);
    frame.gl.glFrontFace(GL_CCW);
    frame.gl.glDisable(GL_CULL_FACE);
}

} // namespace

SurfaceRenderer::SurfaceRenderer() : m_lit(VertexSource, FragmentSource) {}

void SurfaceRenderer::Draw(const Frame &frame, const QVector<ShownMesh> &meshes)
{
    if (!frame.options.xRay) {
        drawColours(frame, meshes);
        return;
    }
    // Depths first: then each pixel is covered once, and no fold of the surface shows through.
    DrawDepths(frame, meshes);
    frame.gl.glEnable(GL_BLEND);
    drawColours(frame, meshes);
}

void SurfaceRenderer::DrawDepths(const Frame &frame, const QVector<ShownMesh> &meshes)
{
    frame.gl.glColorMask(GL_FALSE, GL_FALSE, GL_FALSE, GL_FALSE);
    m_lit.Begin();
    for (const ShownMesh &mesh : meshes) {
        m_lit.Set("toClip", mesh.toWorld * frame.WorldToClip(mesh.lift));
        drawMesh(frame, m_lit, mesh);
    }
    m_lit.End();
    frame.gl.glColorMask(GL_TRUE, GL_TRUE, GL_TRUE, GL_FALSE);
}

void SurfaceRenderer::drawColours(const Frame &frame, const QVector<ShownMesh> &meshes)
{
    m_lit.Begin();
    m_lit.Set("matcap", frame.options.shading == Shading::Matcap ? 1.0f : 0.0f);
    for (const ShownMesh &mesh : meshes) {
        QColor colour = colourOf(mesh);
        if (frame.options.xRay)
            colour.setAlphaF(double(SeeThrough));
        m_lit.Set("toClip", mesh.toWorld * frame.WorldToClip(mesh.lift));
        m_lit.Set("fromEye", eyeToObject(frame, mesh));
        m_lit.Set("colour", colour);
        m_lit.Set("dimming", mesh.role == MeshRole::Source ? SourceDimming : 0.0f);
        drawMesh(frame, m_lit, mesh);
    }
    m_lit.End();
}

} // namespace orvane
