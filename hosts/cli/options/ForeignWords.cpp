// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ForeignWords.h"

#include "job/effects/EffectCatalog.h"
#include "job/values/Phrase.h"

#include <algorithm>
#include <array>

namespace BatchCli {

namespace {

struct ForeignOption
{
    const char* names;  ///< separated by blanks
    const char* option; ///< of ours; the advice is for commands that have it
    const char* advice; ///< or the options to use; "%1" is replaced by the value that was given
    const char* value;  ///< stands for a value that was not given
};

constexpr std::array foreignOptions{
    ForeignOption{"--recursive --recurse -r -R", "--no-subfolders",
                  BatchJob::Phrase::Marked("folders are always read with their subfolders, so leave it out"), ""},
    ForeignOption{"--no-recursive --no-recurse --depth --max-depth --maxdepth", "--no-subfolders", "--no-subfolders",
                  ""},
    ForeignOption{"--input --in -i", "--output", BatchJob::Phrase::Marked("name files and folders without an option"),
                  ""},
    ForeignOption{"--stdin --list --file-list --filelist", "--files-from",
                  BatchJob::Phrase::Marked("use --files-from FILE, or --files-from -"), ""},
    ForeignOption{"--filter --pattern --glob --only", "--include", "--include \"%1\"", "WILDCARD"},
    ForeignOption{"--ignore", "--exclude", "--exclude \"%1\"", "WILDCARD"},
    ForeignOption{"--all", "--hidden",
                  BatchJob::Phrase::Marked("use --hidden for files and folders whose names begin with a dot"), ""},
    ForeignOption{"--output-dir --output-folder --output-directory --outdir --out-dir --out --outpath --dest "
                  "--destination --target --target-dir --to --dir --path -d -O",
                  "--output", "--output %1", "DIR"},
    ForeignOption{"--keep-structure --preserve-structure --tree --parents", "--structure", "--structure input", ""},
    ForeignOption{"--output-format --type --ext --extension --convert --convert-to", "--format", "--format %1",
                  "FORMAT"},
    ForeignOption{"--progressive --interlace", "--format-option", "--format-option progressive=true", ""},
    ForeignOption{"--max-bytes --max-filesize --max-file-size --size-limit --target-size --filesize --limit",
                  "--max-size", "--max-size %1", "500kB"},
    ForeignOption{"--lossless", "--format-option", "--format-option lossless=true", ""},
    ForeignOption{
        "--compression --compress", "--format-option",
        BatchJob::Phrase::Marked("use --quality N, or --format-option compression=WORD or compressionLevel=N"), ""},
    ForeignOption{"--subsampling --sampling-factor --chroma", "--format-option", "--format-option chromaSubsampling=%1",
                  "4:2:0"},
    ForeignOption{"--bit-depth --bits", "--format-option", "--format-option bitDepth=%1", "8"},
    ForeignOption{"--strip --strip-all --strip-metadata --no-metadata --remove-metadata --no-exif --strip-exif",
                  "--format-option", "--format-option keep=none", ""},
    ForeignOption{"--keep-metadata --metadata --copy-metadata --exif --keep-exif --preserve-metadata",
                  "--format-option",
                  BatchJob::Phrase::Marked("metadata is kept unless --format-option keep=WORD+WORD says which"), ""},
    ForeignOption{"--preserve-date --keep-date --preserve --timestamps", "--format-option",
                  "--format-option keepFileTime=true", ""},
    ForeignOption{"--profile --colorspace --colourspace --color-profile --srgb", "--icc", "--icc FILE", ""},
    ForeignOption{"--width -w", "--size", "--size %1 --side width", "LENGTH"},
    ForeignOption{"--height", "--size", "--size %1 --side height", "LENGTH"},
    ForeignOption{"--long-edge --long-side --longest --max-size --max --max-dimension --maxsize --geometry --thumbnail",
                  "--size", "--size %1", "LENGTH"},
    ForeignOption{"--short-edge --short-side --shortest", "--size", "--size %1 --side short", "LENGTH"},
    ForeignOption{"--scale --percent --zoom", "--size",
                  BatchJob::Phrase::Marked("use --size %1, with % for a percentage"), "50%"},
    ForeignOption{"--upscale --enlarge", "--resize", "--resize fit", ""},
    ForeignOption{"--dpi --ppi --density", "--resolution", "--resolution %1", "DPI"},
    ForeignOption{"--trim", "--crop", "--crop trim", ""},
    ForeignOption{"--aspect --aspect-ratio --ratio", "--crop", "--crop ratio:%1", "3x2"},
    ForeignOption{"--cover --fill", "--crop", "--crop fill:%1", "800x600"},
    ForeignOption{"--gravity --anchor --position", "--crop-position", "--crop-position WORD", ""},
    ForeignOption{"--background-color --background-colour --bg", "--background", "--background colour:%1", "#rrggbb"},
    ForeignOption{"--auto-orient --autorotate --auto-rotate --orient", "--effect",
                  BatchJob::Phrase::Marked("pictures are always turned upright, so leave it out"), ""},
    ForeignOption{"--gray --grey --greyscale --bw --monochrome", "--effect", "--effect grayscale", ""},
    ForeignOption{
        "--watermark --text --logo", "--effect",
        BatchJob::Phrase::Marked("use --effect watermark-text:text=TEXT or --effect watermark-image:file=FILE"), ""},
    ForeignOption{"--brightness --contrast", "--effect", "--effect brightness-contrast", ""},
    ForeignOption{"--unsharp", "--effect", "--effect sharpen", ""},
    ForeignOption{"--rename --output-name --filename --template", "--name",
                  BatchJob::Phrase::Marked(
                      "use --name, --prefix and --suffix, or --on-name-exists rename for names that are taken"),
                  ""},
    ForeignOption{"--overwrite --force --yes --replace -y", "--on-name-exists", "--on-name-exists overwrite", ""},
    ForeignOption{"--overwrite --yes --replace -y", "--force", "--force", ""},
    ForeignOption{"--skip-existing --no-clobber --no-overwrite --keep-existing", "--on-name-exists",
                  "--on-name-exists skip", ""},
    ForeignOption{"--threads --thread --jobs --parallel --processes --procs --cores -t -p", "--workers", "--workers %1",
                  "N"},
    ForeignOption{"--dry-run --dryrun --simulate --preview --test --what-if -n", "--output",
                  BatchJob::Phrase::Marked("\"velkora-batch plan\" prints what a run would write"), ""},
    ForeignOption{"--continue", "--resume", "--resume", ""},
    ForeignOption{"--log --log-file --csv", "--report", "--report %1", "FILE"},
    ForeignOption{"--memory --max-memory", "--worker-memory", "--worker-memory %1", "MIB"},
    ForeignOption{"--timeout", "--picture-time", "--picture-time %1", "SECONDS"},
    ForeignOption{"--silent --no-progress", "--quiet", "--quiet", ""},
    ForeignOption{"--debug", "--verbose", "--verbose", ""},
    ForeignOption{"--config --job --load", "--output", BatchJob::Phrase::Marked("name a saved job as the first input"),
                  ""},
    ForeignOption{"--list-formats --formats", "--help", BatchJob::Phrase::Marked("use \"velkora-batch formats\""), ""},
    ForeignOption{"--list-effects --effects --filters", "--help",
                  BatchJob::Phrase::Marked("use \"velkora-batch effects\""), ""},
    ForeignOption{"--version -V", "--help", BatchJob::Phrase::Marked("use \"velkora-batch --version\""), ""},
    ForeignOption{"-? --usage", "--help", "--help", ""},
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
            const QString advice =
                QString::fromLatin1(known.advice)
                    .replace(QStringLiteral("%1"), value.isEmpty() ? QString::fromLatin1(known.value) : value);
            return advice.startsWith(QLatin1String("--")) ? BatchJob::Phrase::English("use --%1").arg(advice.mid(2))
                                                          : advice;
        }
    }
    const BatchJob::EffectSchema* const effect = BatchJob::FindEffect(name.mid(2).toLower());
    if (effect != nullptr && name.startsWith(QLatin1String("--")) && HasOption(command, "--effect")) {
        return BatchJob::Phrase::English("use --effect %1; \"velkora-batch effects %1\" lists its parameters")
            .arg(effect->id);
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
