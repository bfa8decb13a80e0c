#include "ForeignWords.h"

#include "job/effects/EffectCatalog.h"

#include <algorithm>
#include <array>

namespace BatchCli {

namespace {

struct ForeignOption
{
    const char* names;  ///< separated by blanks
    const char* option; ///< of ours; the advice is for commands that have it
    const char* advice; ///< "%1" is replaced by the value that was given
    const char* value;  ///< stands for a value that was not given
};

constexpr std::array foreignOptions{
    ForeignOption{"--recursive --recurse -r -R", "--no-subfolders",
                  "folders are always read with their subfolders, so leave it out", ""},
    ForeignOption{"--no-recursive --no-recurse --depth --max-depth --maxdepth", "--no-subfolders",
                  "use --no-subfolders", ""},
    ForeignOption{"--input --in -i", "--output", "name files and folders without an option", ""},
    ForeignOption{"--stdin --list --file-list --filelist", "--files-from", "use --files-from FILE, or --files-from -",
                  ""},
    ForeignOption{"--filter --pattern --glob --only", "--include", "use --include \"%1\"", "WILDCARD"},
    ForeignOption{"--ignore", "--exclude", "use --exclude \"%1\"", "WILDCARD"},
    ForeignOption{"--all", "--hidden", "use --hidden for files and folders whose names begin with a dot", ""},
    ForeignOption{"--output-dir --output-folder --output-directory --outdir --out-dir --out --outpath --dest "
                  "--destination --target --target-dir --to --dir --path -d -O",
                  "--output", "use --output %1", "DIR"},
    ForeignOption{"--keep-structure --preserve-structure --tree --parents", "--structure", "use --structure input", ""},
    ForeignOption{"--output-format --type --ext --extension --convert --convert-to", "--format", "use --format %1",
                  "FORMAT"},
    ForeignOption{"--progressive --interlace", "--format-option", "use --format-option progressive=true", ""},
    ForeignOption{"--lossless", "--format-option", "use --format-option lossless=true", ""},
    ForeignOption{"--compression --compress", "--format-option",
                  "use --quality N, or --format-option compression=WORD or compressionLevel=N", ""},
    ForeignOption{"--subsampling --sampling-factor --chroma", "--format-option",
                  "use --format-option chromaSubsampling=%1", "4:2:0"},
    ForeignOption{"--bit-depth --bits", "--format-option", "use --format-option bitDepth=%1", "8"},
    ForeignOption{"--strip --strip-all --strip-metadata --no-metadata --remove-metadata --no-exif --strip-exif",
                  "--format-option", "use --format-option keep=none", ""},
    ForeignOption{"--keep-metadata --metadata --copy-metadata --exif --keep-exif --preserve-metadata",
                  "--format-option", "metadata is kept unless --format-option keep=WORD+WORD says which", ""},
    ForeignOption{"--preserve-date --keep-date --preserve --timestamps", "--format-option",
                  "use --format-option keepFileTime=true", ""},
    ForeignOption{"--profile --colorspace --colourspace --color-profile --srgb", "--icc", "use --icc FILE", ""},
    ForeignOption{"--width -w", "--size", "use --size %1 --side width", "LENGTH"},
    ForeignOption{"--height", "--size", "use --size %1 --side height", "LENGTH"},
    ForeignOption{"--long-edge --long-side --longest --max-size --max --max-dimension --maxsize --geometry --thumbnail",
                  "--size", "use --size %1", "LENGTH"},
    ForeignOption{"--short-edge --short-side --shortest", "--size", "use --size %1 --side short", "LENGTH"},
    ForeignOption{"--scale --percent --zoom", "--size", "use --size %1, with % for a percentage", "50%"},
    ForeignOption{"--upscale --enlarge", "--resize", "use --resize fit", ""},
    ForeignOption{"--dpi --ppi --density", "--resolution", "use --resolution %1", "DPI"},
    ForeignOption{"--trim", "--crop", "use --crop trim", ""},
    ForeignOption{"--aspect --aspect-ratio --ratio", "--crop", "use --crop ratio:%1", "3x2"},
    ForeignOption{"--cover --fill", "--crop", "use --crop fill:%1", "800x600"},
    ForeignOption{"--gravity --anchor --position", "--crop-position", "use --crop-position WORD", ""},
    ForeignOption{"--background-color --background-colour --bg", "--background", "use --background colour:%1",
                  "#rrggbb"},
    ForeignOption{"--auto-orient --autorotate --auto-rotate --orient", "--effect",
                  "pictures are always turned upright, so leave it out", ""},
    ForeignOption{"--gray --grey --greyscale --bw --monochrome", "--effect", "use --effect grayscale", ""},
    ForeignOption{"--watermark --text --logo", "--effect",
                  "use --effect watermark-text:text=TEXT or --effect watermark-image:file=FILE", ""},
    ForeignOption{"--brightness --contrast", "--effect", "use --effect brightness-contrast", ""},
    ForeignOption{"--unsharp", "--effect", "use --effect sharpen", ""},
    ForeignOption{"--rename --output-name --filename --template", "--name",
                  "use --name, --prefix and --suffix, or --on-name-exists rename for names that are taken", ""},
    ForeignOption{"--overwrite --force --yes --replace -y", "--on-name-exists", "use --on-name-exists overwrite", ""},
    ForeignOption{"--overwrite --yes --replace -y", "--force", "use --force", ""},
    ForeignOption{"--skip-existing --no-clobber --no-overwrite --keep-existing", "--on-name-exists",
                  "use --on-name-exists skip", ""},
    ForeignOption{"--threads --thread --jobs --parallel --processes --procs --cores -t -p", "--workers",
                  "use --workers %1", "N"},
    ForeignOption{"--dry-run --dryrun --simulate --preview --test --what-if -n", "--output",
                  "\"velkora-batch plan\" prints what a run would write", ""},
    ForeignOption{"--continue", "--resume", "use --resume", ""},
    ForeignOption{"--log --log-file --csv", "--report", "use --report %1", "FILE"},
    ForeignOption{"--memory --max-memory", "--worker-memory", "use --worker-memory %1", "MIB"},
    ForeignOption{"--timeout", "--picture-time", "use --picture-time %1", "SECONDS"},
    ForeignOption{"--silent --no-progress", "--quiet", "use --quiet", ""},
    ForeignOption{"--debug", "--verbose", "use --verbose", ""},
    ForeignOption{"--config --job --load", "--output", "name a saved job as the first input", ""},
    ForeignOption{"--list-formats --formats", "--help", "use \"velkora-batch formats\"", ""},
    ForeignOption{"--list-effects --effects --filters", "--help", "use \"velkora-batch effects\"", ""},
    ForeignOption{"--version -V", "--help", "use \"velkora-batch --version\"", ""},
    ForeignOption{"-? --usage", "--help", "use --help", ""},
};

struct ForeignCommand
{
    const char* names;
    const char* command;
};

constexpr std::array foreignCommands{
    ForeignCommand{"convert resize process start batch export scale crop thumbnail thumbnails apply exec resume",
                   "run"},
    ForeignCommand{"preview simulate check dry-run dryrun test", "plan"},
    ForeignCommand{"new save init make", "create"},
    ForeignCommand{"info print cat describe inspect", "show"},
    ForeignCommand{"filters", "effects"},
    ForeignCommand{"codecs types", "formats"},
    ForeignCommand{"version", "--version"},
};

bool IsAmong(const QString& name, const char* names)
{
    return QString::fromLatin1(names).split(QLatin1Char(' ')).contains(name);
}

bool HasOption(const CommandInfo& command, const char* name)
{
    return std::any_of(command.options.begin(), command.options.end(),
                       [name](const OptionInfo& option) { return option.name == QLatin1String(name); });
}

} // namespace

QString AdviceForOption(const QString& name, const QString& value, const CommandInfo& command)
{
    for (const ForeignOption& known : foreignOptions) {
        if (IsAmong(name, known.names) && HasOption(command, known.option)) {
            QString advice = QString::fromLatin1(known.advice);
            return advice.replace(QStringLiteral("%1"), value.isEmpty() ? QString::fromLatin1(known.value) : value);
        }
    }
    const BatchJob::EffectSchema* const effect = BatchJob::FindEffect(name.mid(2).toLower());
    if (effect != nullptr && name.startsWith(QLatin1String("--")) && HasOption(command, "--effect")) {
        return QStringLiteral("use --effect %1; \"velkora-batch effects %1\" lists its parameters").arg(effect->id);
    }
    return {};
}

QString AdviceForCommand(const QString& name)
{
    for (const ForeignCommand& known : foreignCommands) {
        if (IsAmong(name.toLower(), known.names)) {
            return QString::fromLatin1(known.command);
        }
    }
    return {};
}

} // namespace BatchCli
