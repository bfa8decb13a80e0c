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

/// What a batch job says about its results: where they go and how they are named, encoded, sized, cropped and framed.
///
/// The object stores values and announces changes; it judges none of them. Enumerations travel as plain integers and
/// come back unchanged, whatever their value, because their meaning is settled by the server that reads them. Belongs
/// to the thread that created it, and emits its signals there, from inside the setter that caused them.
class BATCHCORE_EXPORT ZTBatchOutputSettings : public QObject
{
    Q_OBJECT

public:
    /// The parts that the name of a result is made of, in their order in the name.
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

    /// Which folders are made below the output folder.
    enum FolderStructure : int { StructureFlat = 0, StructureAsInput = 1, StructureByCaptureDate = 2 };

    /// The size that results are scaled to. The aspect ratio is always kept.
    struct BATCHCORE_EXPORT ImageSize
    {
        int restriction = 0; ///< 0 leaves the size alone; the other fields but `resolution` mean nothing then
        int unit = 0;        ///< unit of `size`, 0 = pixels
        int side = 2;        ///< which side `size` is the length of, 2 = the long one
        double size = 800.0;
        int resolution = 300; ///< dots per inch

        /// All fields take part. A NaN in `size` equals every number, so that it alone never makes a difference.
        bool operator==(const ImageSize& other) const;
        bool operator!=(const ImageSize& other) const { return !(*this == other); }
    };

    /// The frame that results are cut to. All fields take part in equality.
    struct BATCHCORE_EXPORT Crop
    {
        int alignment = Qt::AlignCenter; ///< Qt alignment flags: where the frame stands in the picture
        QSize size{800, 600};
        int type = 0; ///< 0 = no crop

        bool operator==(const Crop& other) const;
        bool operator!=(const Crop& other) const { return !(*this == other); }
    };

    /// The placement of a picture on a background, with a shadow.
    struct BATCHCORE_EXPORT Transformation
    {
        int angle = 0;                ///< degrees, clockwise
        QMargins margins{5, 5, 5, 5}; ///< pixels of the frame that stay free
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
        QString backgroundImage; ///< names the picture of the background
        QColor backgroundColor = Qt::black;
        QImage backgroundImageData; ///< the loaded picture that `backgroundImage` names, kept beside it by the host
        bool backgroundCustomOutput = false; ///< the frame has `backgroundCustomSize` instead of the picture's size
        QSize backgroundCustomSize{800, 600};
        bool state = false; ///< whether the transformation takes place at all

        /// All fields take part but `backgroundImageData`, which follows from `backgroundImage`. A NaN equals every
        /// number.
        bool operator==(const Transformation& other) const;
        bool operator!=(const Transformation& other) const { return !(*this == other); }
    };

    explicit ZTBatchOutputSettings(QObject* parent);
    ~ZTBatchOutputSettings() override;

    /// The format value that keeps each picture's own format: "Original", in every language.
    static QString GetOriginalFormat();

    /// The name of that value for users, translated.
    static QString GetOriginalFormatName();

    /// Places a picture of `size` pixels, turned by `angle` degrees (clockwise, any integer), in the area that
    /// `margins` leave free of a frame of the same size. The picture keeps its aspect ratio.
    ///
    /// Returns the transform from the picture's coordinates to the frame's. A non-null `outputSize` receives the size
    /// in pixels that the picture is drawn in, before it is turned. Two inputs give the identity: an empty `size`,
    /// which `outputSize` then receives unchanged, and margins that leave nothing free, for which it receives an
    /// invalid size. Safe on any thread.
    static QTransform CalculateOutputTransformation(const QSize& size, int angle, const QMargins& margins,
                                                    QSize* outputSize);

    /// The output folder; empty by default.
    QString GetPath() const;

    /// Writes the format, by default "Original", and its options, by default empty, which only the server reads.
    void GetFormat(QString& format, QByteArray& options) const;

    /// The profile that results are converted to; empty by default.
    QByteArray GetICCProfile() const;

    /// StructureFlat by default.
    FolderStructure GetFolderStructure() const;

    /// The template of `part`. Prefix, middle and suffix start with TemplateNothing, TemplateCustomText and
    /// TemplateNumber. In this and the other operations on a part, one that is not an enumerator is a programming
    /// error.
    NamingTemplate GetNamingTemplate(NamingPart part) const;

    /// The custom text of `part`; by default a translated "Image" for the middle, empty for the others.
    QString GetCustomTemplate(NamingPart part) const;

    /// The first number of `part`; by default 1 for the suffix, 0 for the others.
    int GetStartNumber(NamingPart part) const;

    /// How many digits numbers of `part` have at least; by default 3 for the suffix, 1 for the others.
    int GetDigitsCount(NamingPart part) const;

    /// What stands between prefix and middle; empty by default.
    QString GetPrefixSeparator() const;

    /// What stands between middle and suffix; empty by default.
    QString GetSuffixSeparator() const;

    ImageSize GetImageSizeSettings() const;
    Crop GetCropSettings() const;
    Transformation GetTransformationSettings() const;

    /// Emits PathChanged() on change; paths that differ in letter case are different.
    void SetPath(const QString& path);

    /// Emits FormatChanged() when the format or a byte of the options changes.
    void SetFormat(const QString& format, const QByteArray& options);

    /// Emits AdvancedSettingsChanged() at every call, changed or not.
    void SetICCProfile(const QByteArray& profile);

    /// Emits FolderStructureChanged() on change.
    void SetFolderStructure(FolderStructure structure);

    /// Emits NamingChanged() on change.
    void SetNamingTemplate(NamingPart part, NamingTemplate namingTemplate);

    /// Emits NamingChanged() on change, provided that the template of `part` is TemplateCustomText; else the text is
    /// kept silently for the day it becomes that.
    void SetCustomTemplate(NamingPart part, const QString& text);

    /// Emits NamingChanged() on change, provided that the template of `part` is TemplateNumber. A negative number is
    /// ignored.
    void SetStartNumber(NamingPart part, int number);

    /// Emits NamingChanged() on change, provided that the template of `part` is TemplateNumber. A count below 1 is
    /// ignored.
    void SetDigitsCount(NamingPart part, int count);

    /// Emits SuffixSeparatorChanged() on change: the two separators announce each other's change.
    void SetPrefixSeparator(const QString& separator);

    /// Emits PrefixSeparatorChanged() on change: the two separators announce each other's change.
    void SetSuffixSeparator(const QString& separator);

    /// Emits RestrictionChanged() on change.
    void SetImageSizeSettings(const ImageSize& settings);

    /// Emits CropChanged() on change.
    void SetCropSettings(const Crop& settings);

    /// Emits TransformationChanged() on change. A record that differs only in its loaded picture is no change, and is
    /// not stored.
    void SetTransformationSettings(const Transformation& settings);

    /// Resolves the output folder anew, for a folder that was moved or mounted again since the path was set. Emits
    /// nothing.
    void RefreshPath();

    /// Puts format, folder structure, the three naming parts and the path back to their defaults, each through its
    /// setter and in this order. Separators, size, crop, transformation and profile stay.
    void RestoreDefault();

Q_SIGNALS:
    void FormatChanged();
    /// The image size has changed.
    void RestrictionChanged();
    void PathChanged();
    void FolderStructureChanged();
    /// A naming part has changed in a way that shows in the names of results.
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
