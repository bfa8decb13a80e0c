// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QLatin1String>

/// The names of the elements and attributes in a job's text.
namespace ZTBatchXml {

/// From an array the size is known at compile time; QLatin1String would measure a plain pointer at run time.
template<int size>
constexpr QLatin1String Name(const char (&text)[size])
{
    return QLatin1String(text, size - 1);
}

constexpr QLatin1String documentType = Name("batch");

constexpr QLatin1String root = Name("root");
constexpr QLatin1String name = Name("name");

constexpr QLatin1String input = Name("input");
constexpr QLatin1String inputElement = Name("inputElement");
constexpr QLatin1String inputText = Name("inputText");
constexpr QLatin1String inputInfo = Name("inputInfo");
constexpr QLatin1String fileName = Name("fileName");
constexpr QLatin1String type = Name("type");
constexpr QLatin1String lastModification = Name("lastModification");

constexpr QLatin1String style = Name("style");
constexpr QLatin1String effect = Name("effect");
constexpr QLatin1String uid = Name("UID");
constexpr QLatin1String data = Name("data");
constexpr QLatin1String enabled = Name("enabled");

constexpr QLatin1String output = Name("output");

constexpr QLatin1String imageSize = Name("imageSize");
constexpr QLatin1String restriction = Name("restriction");
constexpr QLatin1String size = Name("size");
constexpr QLatin1String side = Name("side");
constexpr QLatin1String unit = Name("unit");
constexpr QLatin1String resolution = Name("resolution");

constexpr QLatin1String imageFormat = Name("imageFormat");
constexpr QLatin1String format = Name("format");

constexpr QLatin1String folder = Name("folder");
constexpr QLatin1String folderStructure = Name("folderStructure");

constexpr QLatin1String naming = Name("naming");
constexpr QLatin1String prefixSeparator = Name("prefixSeparator");
constexpr QLatin1String suffixSeparator = Name("suffixSeparator");
constexpr QLatin1String prefix = Name("prefix");
constexpr QLatin1String middle = Name("middle");
constexpr QLatin1String suffix = Name("suffix");
constexpr QLatin1String startAt = Name("startAt");
constexpr QLatin1String count = Name("count");

constexpr QLatin1String transformation = Name("transformation");
constexpr QLatin1String transformationState = Name("transformationState");
constexpr QLatin1String transformationAngle = Name("transformationAngle");
constexpr QLatin1String transformationBlending = Name("transformationBlending");
constexpr QLatin1String transformationOpacity = Name("transformationOpacity");
constexpr QLatin1String transformationMargins = Name("transformationMargins");
constexpr QLatin1String transformationShadowEnabled = Name("transformationShadowEnabled");
constexpr QLatin1String transformationShadowMode = Name("transformationShadowMode");
constexpr QLatin1String transformationShadowOpacity = Name("transformationShadowOpacity");
constexpr QLatin1String transformationShadowAngle = Name("transformationShadowAngle");
constexpr QLatin1String transformationShadowDistance = Name("transformationShadowDistance");
constexpr QLatin1String transformationShadowSize = Name("transformationShadowSize");
constexpr QLatin1String transformationShadowColor = Name("transformationShadowColor");
constexpr QLatin1String transformationBackgroundType = Name("transformationBackgroundType");
constexpr QLatin1String transformationBackgroundColor = Name("transformationBackgroundColor");
constexpr QLatin1String transformationBackgroundPattern = Name("transformationBackgroundPattern");
constexpr QLatin1String transformationBackgroundImage = Name("transformationBackgroundImage");
constexpr QLatin1String transformationBackgroundOpacity = Name("transformationBackgroundOpacity");
constexpr QLatin1String transformationBackgroundCustomOutput = Name("transformationBackgroundCustomOutput");
constexpr QLatin1String transformationBackgroundCustomWidth = Name("transformationBackgroundCustomWidth");
constexpr QLatin1String transformationBackgroundCustomHeight = Name("transformationBackgroundCustomHeight");

constexpr QLatin1String crop = Name("crop");
constexpr QLatin1String cropAlignment = Name("cropAlignment");
constexpr QLatin1String cropWidth = Name("cropWidth");
constexpr QLatin1String cropHeight = Name("cropHeight");
constexpr QLatin1String cropType = Name("cropType");
/// Only read, never written: in older jobs it means that there is a crop.
constexpr QLatin1String cropEnabled = Name("cropEnabled");

constexpr QLatin1String advancedOutput = Name("advancedOutput");
constexpr QLatin1String iccProfile = Name("ICCProfile");

} // namespace ZTBatchXml
