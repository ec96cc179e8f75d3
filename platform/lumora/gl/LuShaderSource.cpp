// SPDX-License-Identifier: MIT
#include "platform/lumora/gl/LuShaderSource.h"

// A piece is a run of the vertex table. All pieces of one call are given as many vertices as the largest may
// have; those behind a piece's end fall together in one point outside of the picture.
const char* const LuShaderSource::VERTEX = R"glsl(
precision highp float;
precision highp int;
layout(location = 0) in uvec3 piece; // record, first vertex, number of vertices
layout(location = 1) in vec2 offset;
uniform mat4 viewProjection;
uniform highp sampler2D vertexTable;
uniform highp sampler2D recordTable;
out vec3 place;
out vec3 normal;
flat out ivec4 look; // material, clip set, light set, flags

vec4 fetchTexel(highp sampler2D table, int index) {
    return texelFetch(table, ivec2(index & 1023, index >> 10), 0);
}

vec3 unpackNormal(float code) {
    float high = floor(code / 4096.0);
    vec2 uv = vec2(high, code - high * 4096.0) / 2047.0 - 1.0;
    float z = 1.0 - abs(uv.x) - abs(uv.y);
    float fold = max(-z, 0.0);
    uv -= vec2(uv.x < 0.0 ? -fold : fold, uv.y < 0.0 ? -fold : fold);
    return vec3(uv, z);
}

void main() {
    place = vec3(0.0);
    normal = vec3(0.0, 0.0, 1.0);
    look = ivec4(0);
    gl_Position = vec4(0.0, 0.0, 2.0, 1.0);
    if (uint(gl_VertexID) >= piece.z)
        return;
    vec4 vertex = fetchTexel(vertexTable, int(piece.y) + gl_VertexID);
    int record = int(piece.x) * 4;
    vec4 x = fetchTexel(recordTable, record);
    vec4 y = fetchTexel(recordTable, record + 1);
    vec4 z = fetchTexel(recordTable, record + 2);
    look = ivec4(fetchTexel(recordTable, record + 3));
    vec4 local = vec4(vertex.xy + offset, vertex.z, 1.0);
    place = vec3(dot(x, local), dot(y, local), dot(z, local));
    // By the cofactors a normal stays one whatever the scale, and nothing is divided by zero.
    vec3 n = unpackNormal(vertex.w);
    normal = vec3(dot(cross(y.xyz, z.xyz), n), dot(cross(z.xyz, x.xyz), n), dot(cross(x.xyz, y.xyz), n));
    if ((look.w & 2) != 0)
        normal = -normal;
    // Their size is that of an area, and may be beyond what a float's square can be.
    float size = max(max(abs(normal.x), abs(normal.y)), abs(normal.z));
    if (size > 0.0)
        normal /= size;
    gl_Position = viewProjection * vec4(place, 1.0);
}
)glsl";

const char* const LuShaderSource::FRAGMENT = R"glsl(
precision highp float;
precision highp int;
in vec3 place;
in vec3 normal;
flat in ivec4 look;
uniform highp sampler2D materialTable;
uniform highp sampler2D clipTable;
uniform highp sampler2D lightTable;
uniform vec4 eye;      // its place and 1, or the direction to it and 0
uniform vec4 headlight; // the direction to it and its brightness
uniform vec3 ambientLight;
out vec4 color;

vec4 fetchTexel(highp sampler2D table, int index) {
    return texelFetch(table, ivec2(index & 1023, index >> 10), 0);
}

// How much of the pixel lies on the visible side of all planes.
float getCoverage() {
    float coverage = 1.0;
    int set = look.y * 8;
    int count = int(fetchTexel(clipTable, set).x);
    for (int i = 1; i <= count; ++i) {
        vec4 plane = fetchTexel(clipTable, set + i);
        float distance = dot(plane.xyz, place) + plane.w;
        coverage = min(coverage, clamp(distance / max(fwidth(distance), 1e-6) + 0.5, 0.0, 1.0));
    }
    return coverage;
}

vec3 shine(vec3 n, vec3 toEye, vec3 toLight, vec3 diffuse, vec4 specular) {
    float facing = dot(n, toLight);
    if (facing <= 0.0)
        return vec3(0.0);
    vec3 halfway = toEye + toLight;
    float length2 = dot(halfway, halfway);
    float gloss = length2 > 0.0 ? max(dot(n, halfway) * inversesqrt(length2), 0.0) : 0.0;
    return diffuse * facing + specular.rgb * pow(max(gloss, 1e-6), max(specular.w, 1e-3));
}

void main() {
    if ((look.w & 1) != 0 && gl_FrontFacing == ((look.w & 2) != 0))
        discard;
    // Drivers give one sample to the least alpha: round to the nearest number of four.
    float coverage = getCoverage();
    if (coverage < 0.125)
        discard;
    int material = look.x * 4;
    vec4 diffuse = fetchTexel(materialTable, material);
    vec3 ambient = fetchTexel(materialTable, material + 1).rgb;
    vec4 specular = fetchTexel(materialTable, material + 2);
    vec3 result = fetchTexel(materialTable, material + 3).rgb + ambient * ambientLight;

    vec3 toEye = normalize(eye.xyz - place * eye.w);
    float size = length(normal);
    vec3 n = size > 0.0 ? normal / size : toEye;
    if (dot(n, toEye) < 0.0)
        n = -n;
    if (headlight.w > 0.0)
        result += headlight.w * shine(n, toEye, headlight.xyz, diffuse.rgb, specular);
    int set = look.z * 16;
    int count = int(fetchTexel(lightTable, set).x);
    for (int i = 0; i < count; ++i) {
        vec4 light = fetchTexel(lightTable, set + 2 * i + 1);
        vec3 direction = light.w > 0.0 ? light.xyz - place : -light.xyz;
        float distance = length(direction);
        if (distance > 0.0)
            result += fetchTexel(lightTable, set + 2 * i + 2).rgb *
                      shine(n, toEye, direction / distance, diffuse.rgb, specular);
    }
    color = vec4(min(result, vec3(1.0)), diffuse.a * coverage);
}
)glsl";
