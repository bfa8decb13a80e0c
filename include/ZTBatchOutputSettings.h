// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ZTBatchGlobal.h"

#include <QByteArray>
#include <QColor>
#include <QImage>
#include <QMargins>
#include <QObject>
#include <QSize>
#include <QString>
#include <QTransform>

#include <array>
#include <memory>

/// The output settings of a batch job: where results go and how they are named, encoded, sized, cropped and framed.
///
/// The object stores values and signals changes; except where a setter says so, it does not validate them. Enumerations
/// are stored as plain integers and any value is kept; the server defines their meaning, which ZTBatchValues.h names.
/// Use the object only on the thread that created it. Signals are emitted from inside the setter that causes them.
class BATCHCORE_EXPORT ZTBatchOutputSettings : public QObject
{
    Q_OBJECT

public:
    /// The parts of a result's name, in their order in the name.
    enum NamingPart : int { PartPrefix = 0, PartMiddle = 1, PartSuffix = 2 };

    /// What a part contributes to the name.
    enum NamingTemplate : int {
        TemplateOriginalName = 0,
        TemplateNumber = 1, ///< counts from the part's start number, with at least the part's count of digits
        TemplateCaptureDate = 2,
        TemplateCaptureTime = 3,
        TemplateCustomText = 4, ///< the part's custom text
        TemplateNothing = 5
    };

    /// Which folders are created below the output folder.
    enum FolderStructure : int { StructureFlat = 0, StructureAsInput = 1, StructureByCaptureDate = 2 };

    /// The size that results are scaled to. The aspect ratio is always kept.
    struct BATCHCORE_EXPORT ImageSize
    {
        int restriction = 0; ///< 0 = no scaling; then only `resolution` has an effect
        int unit = 0;        ///< unit of `size`; 0 = pixels
        int side = 2;        ///< the side that `size` applies to; 2 = the long one
        double size = 800.0;
        int resolution = 300; ///< dots per inch

        /// Compares all fields. A NaN in `size` equals every number, so it never makes two records unequal by itself.
        bool operator==(const ImageSize& other) const;
        bool operator!=(const ImageSize& other) const { return !(*this == other); }
    };

    /// The frame that results are cropped to. Equality compares all fields.
    struct BATCHCORE_EXPORT Crop
    {
        int alignment = Qt::AlignCenter; ///< Qt alignment flags: the position of the frame in the picture
        QSize size{800, 600};            ///< pixels, or a ratio, depending on `type`
        int type = 0;                    ///< 0 = no crop

        bool operator==(const Crop& other) const;
        bool operator!=(const Crop& other) const { return !(*this == other); }
    };

    /// The placement of a picture on a background, with a shadow.
    struct BATCHCORE_EXPORT Transformation
    {
        int angle = 0;                ///< degrees, clockwise
        QMargins margins{5, 5, 5, 5}; ///< pixels of the frame that stay empty
        int blending = 0;             ///< 0 = normal
        double opacity = 1.0;         ///< 0 to 1, like the other opacities
        bool shadowEnabled = true;
        QColor shadowColor = Qt::black;
        int shadowMode = 0;
        double shadowOpacity = 0.75;
        int shadowAngle = 0;    ///< degrees
        int shadowDistance = 5; ///< pixels
        int shadowSize = 5;     ///< pixels
        int backgroundType = 0; ///< 0 = none
        double backgroundOpacity = 1.0;
        std::array<int, 3> backgroundPattern{0, 0, 0};
        QString backgroundImage; ///< the path of the background picture
        QColor backgroundColor = Qt::black;
        QImage backgroundImageData;          ///< the loaded `backgroundImage`, for the host only
        bool backgroundCustomOutput = false; ///< the frame is `backgroundCustomSize` instead of the picture's size
        QSize backgroundCustomSize{800, 600};
        bool state = false; ///< whether the transformation is applied at all

        /// Compares all fields except `backgroundImageData`, which depends on `backgroundImage`. A NaN equals every
        /// number.
        bool operator==(const Transformation& other) const;
        bool operator!=(const Transformation& other) const { return !(*this == other); }
    };

    explicit ZTBatchOutputSettings(QObject* parent);
    ~ZTBatchOutputSettings() override;

    /// The format value that keeps the format of each picture: "Original", never translated.
    static QString GetOriginalFormat();

    /// The translated display name of that value.
    static QString GetOriginalFormatName();

    /// Fits a picture of `size` pixels, rotated by `angle` degrees (clockwise, any integer), into the area that
    /// `margins` leave free in a frame of the same size. The picture keeps its aspect ratio.
    ///
    /// Returns the transform from the picture's coordinates to the frame's. `outputSize` may be null; otherwise it
    /// receives the size in pixels at which the picture is drawn, before the rotation. The result is the identity if
    /// `size` is empty, in which case `outputSize` receives `size`, and if the margins leave no area free, in which
    /// case `outputSize` receives an invalid size. Thread-safe.
    static QTransform CalculateOutputTransformation(const QSize& size, int angle, const QMargins& margins,
                                                    QSize* outputSize);

    /// The output folder; empty by default.
    QString GetPath() const;

    /// Sets `format` to the format ("Original" by default) and `options` to its options (empty by default), which only
    /// the server interprets.
    void GetFormat(QString& format, QByteArray& options) const;

    /// The ICC profile that results are converted to; empty by default.
    QByteArray GetICCProfile() const;

    /// StructureFlat by default.
    FolderStructure GetFolderStructure() const;

    /// The template of `part`; by default TemplateNothing for the prefix, TemplateCustomText for the middle and
    /// TemplateNumber for the suffix. Here and in the other functions, a `part` that is no enumerator is a programming
    /// error.
    NamingTemplate GetNamingTemplate(NamingPart part) const;

    /// The custom text of `part`; by default a translated "Image" for the middle, empty for the others.
    QString GetCustomTemplate(NamingPart part) const;

    /// The first number of `part`; by default 1 for the suffix, 0 for the others.
    int GetStartNumber(NamingPart part) const;

    /// The minimum number of digits of `part`; by default 3 for the suffix, 1 for the others.
    int GetDigitsCount(NamingPart part) const;

    /// The text between prefix and middle; empty by default.
    QString GetPrefixSeparator() const;

    /// The text between middle and suffix; empty by default.
    QString GetSuffixSeparator() const;

    ImageSize GetImageSizeSettings() const;
    Crop GetCropSettings() const;
    Transformation GetTransformationSettings() const;

    /// Emits PathChanged() on change. The comparison is case-sensitive.
    void SetPath(const QString& path);

    /// Emits FormatChanged() if the format or any byte of the options changes.
    void SetFormat(const QString& format, const QByteArray& options);

    /// Emits AdvancedSettingsChanged() at every call, even for the same profile.
    void SetICCProfile(const QByteArray& profile);

    /// Emits FolderStructureChanged() on change.
    void SetFolderStructure(FolderStructure structure);

    /// Emits NamingChanged() on change.
    void SetNamingTemplate(NamingPart part, NamingTemplate namingTemplate);

    /// Emits NamingChanged() on change if the template of `part` is TemplateCustomText. With another template the text
    /// is stored without a signal.
    void SetCustomTemplate(NamingPart part, const QString& text);

    /// Emits NamingChanged() on change if the template of `part` is TemplateNumber; otherwise stores the number without
    /// a signal. Ignores a negative number.
    void SetStartNumber(NamingPart part, int number);

    /// Emits NamingChanged() on change if the template of `part` is TemplateNumber; otherwise stores the count without
    /// a signal. Ignores a count below 1.
    void SetDigitsCount(NamingPart part, int count);

    /// Emits SuffixSeparatorChanged() on change: each separator emits the signal of the other.
    void SetPrefixSeparator(const QString& separator);

    /// Emits PrefixSeparatorChanged() on change: each separator emits the signal of the other.
    void SetSuffixSeparator(const QString& separator);

    /// Emits RestrictionChanged() on change.
    void SetImageSizeSettings(const ImageSize& settings);

    /// Emits CropChanged() on change.
    void SetCropSettings(const Crop& settings);

    /// Emits TransformationChanged() on change. A record that differs only in `backgroundImageData` is equal and is not
    /// stored.
    void SetTransformationSettings(const Transformation& settings);

    /// Resolves the output folder again, in case it was moved or remounted since the path was set. Emits nothing.
    void RefreshPath();

    /// Resets format, folder structure, the three naming parts and the path to their defaults, through their setters
    /// and in this order. Separators, size, crop, transformation and profile are not changed.
    void RestoreDefault();

Q_SIGNALS:
    void FormatChanged();
    /// The image size has changed.
    void RestrictionChanged();
    void PathChanged();
    void FolderStructureChanged();
    /// A naming part has changed in a way that affects the names of results.
    void NamingChanged();
    /// The suffix separator has changed.
    void PrefixSeparatorChanged();
    /// The prefix separator has changed.
    void SuffixSeparatorChanged();
    void TransformationChanged();
    void CropChanged();
    /// The profile was set.
    void AdvancedSettingsChanged();

private:
    Q_DISABLE_COPY(ZTBatchOutputSettings)

    class Private;
    std::unique_ptr<Private> d;
};
