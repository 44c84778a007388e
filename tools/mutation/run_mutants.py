#!/usr/bin/env python3
"""Mutation pass over the core: puts one small fault into the source at a time,
rebuilds the command and the named test programs, runs them, and says whether
a test failed (killed) or none did (survived). The source is restored after
each mutant, also when interrupted.

    tools/mutation/run_mutants.py [BUILD_DIR] [ID...]

BUILD_DIR is a configured core build (default build-core, e.g. configured with
-DTARVIK_BUILD_UI=OFF); IDs pick mutants from the table below.
"""
import os
import subprocess
import sys

# (id, file, text replaced, replacement, test programs under BUILD/tests/core)
TEL='telemetry/test_core_telemetry'; TRIPS='trips/test_core_trips'; PROF='settings_profile/test_core_settings_profile'
SET='settings/test_core_settings'; LIB='library/test_core_library'; HOST='hostile_card/test_core_hostile_card'
MEDIA='media/test_core_media'
M = [
 (1,'src/core/util/regular_file.cpp','!S_ISREG(st.st_mode)','S_ISDIR(st.st_mode)',[HOST,SET]),
 (2,'src/core/util/unrecorded_space.cpp','(p[0] == 0 && std::memcmp','(std::memcmp',[TEL]),
 (3,'src/core/telemetry/text_record_reader.cpp','if (!d_ || allZero(d_, len_)) return n;','if (!d_) return n;',[TEL]),
 (4,'src/core/telemetry/avi_chunk_reader.cpp','if (!window->get(pos, h, 8) || !isChunkTag(h)) break;','if (!window->get(pos, h, 8)) break;',[TEL]),
 (5,'src/core/telemetry/avi_chunk_reader.cpp','if (second.pending() >= kMaxReadingsPerSecond) return;','if (second.pending() > kMaxReadingsPerSecond) return;',[TEL]),
 (6,'src/core/telemetry/tail_text_reader.cpp','if (std::memchr(d, 0, kTailWindow) || ','if (',[TEL]),
 (7,'src/core/library/trips/clip_container.cpp','} else if (startsUnrecorded(fd)) {','} else if (false) {',[TRIPS]),
 (8,'src/core/library/trips/clip_container.cpp','if (!std::all_of(h, h + 4, [](unsigned char c) { return c >= 0x20 && c <= 0x7e; })) break;','',[TRIPS]),
 (9,'src/core/settings/profile/json_value.cpp','if (!keys_.back().insert(k).second)','if (false && !keys_.back().insert(k).second)',[PROF]),
 (10,'src/core/settings/profile/json_value.cpp','if (stack_.size() > static_cast<std::size_t>(kMaxJsonDepth))','if (stack_.size() >= static_cast<std::size_t>(kMaxJsonDepth))',[PROF]),
 (11,'src/core/settings/profile/json_value.cpp','if (n > static_cast<number_unsigned_t>','if (n >= static_cast<number_unsigned_t>',[PROF]),
 (12,'src/core/settings/profile/json_value.cpp',"text_[start - 1] == '0'","text_[start - 1] == '1'",[PROF]),
 (13,'src/core/settings/profile/settings_profile.cpp','return static_cast<unsigned char>(c) < 0x20;','return static_cast<unsigned char>(c) < 0x00;',[PROF]),
 (14,'src/core/settings/profile/settings_edit.cpp','if (a.given == ValueKind::Number && !number) {','if (false) {',[PROF]),
 (15,'src/core/library/check/write_leftovers.cpp','else if (descend && isFolder(path, e))','else if (false)',[TRIPS]),
 (16,'src/core/util/atomic_file.cpp',"name.size() > 1 && name[0] == '.' &&","name.size() > 1 &&",[TRIPS]),
 (17,'src/core/util/atomic_file.cpp','    removeStaleTemporaries(dir, base);\n','',[SET,PROF,TRIPS]),
 (18,'src/core/util/bounded_file.cpp','if (offset > size_ || n > size_ - offset) return false;','if (offset > size_) return false;',[TEL]),
 (19,'src/core/library/clip_file_check.cpp','if (length > size - at) return true;','if (length >= size - at) return true;',[LIB]),
 (20,'src/core/settings/profile/setting_rules.cpp','hours < -12 || hours > 14)','hours < -12 || hours > 15)',[PROF]),
 (21,'src/core/telemetry/avi_chunk_reader.cpp','g.x = static_cast<std::int16_t>(static_cast<int>(at(1)) * 10 - 1280);','g.x = static_cast<std::int16_t>(static_cast<int>(at(1)) * 10 - 1270);',[TEL]),
 (22,'src/core/telemetry/orvo_clip_data.h','index < kCapacity && index < clipDataCount_;','index < kCapacity && index <= clipDataCount_;',[TEL]),
 (23,'src/core/library/trips/trip_builder.cpp','last.seconds > 0 &&','last.seconds >= 0 &&',[TRIPS]),
 (24,'src/core/settings/profile/settings_profile.cpp','if (v.kind != JsonValue::Kind::Number)\n','if (false)\n',[PROF]),
 (25,'src/core/settings/profile/setting_rules.cpp','(std::int64_t{1} << (8 * width)) - 1, error)','(std::int64_t{1} << (8 * width)), error)',[PROF]),
 (26,'src/core/library/trips/trip_builder.cpp','gap <= kTripMaxGapSeconds &&','gap < kTripMaxGapSeconds &&',[TRIPS]),
 (27,'src/core/library/trips/trip_builder.cpp','gap >= -kTripMaxGapSeconds','gap > -kTripMaxGapSeconds',[TRIPS]),
 (28,'src/core/media/subtitle_track.cpp','return {d + 2, std::min(len, n - 2)};','return {d + 2, len};',[MEDIA]),
 (29,'src/core/telemetry/telemetry_records.cpp','if (field(f, base + 2) != "A") return fix;','if (field(f, base + 2) == "V") return fix;',[TEL]),
 (30,'src/core/telemetry/subtitle_entry.cpp','f[2] != "A") return;','f[2] == "V") return;',[TEL]),
 (31,'src/core/settings/profile/settings_edit.cpp','size != card.bytes.size() ||\n        now != card.bytes)','size != card.bytes.size())',[PROF]),
]


def main():
    root = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
    args = sys.argv[1:]
    build = os.path.abspath(os.path.join(root, args.pop(0) if args and not args[0].isdigit() else 'build-core'))
    only = {int(a) for a in args}
    killed = total = 0
    for (i, f, old, new, tests) in M:
        if only and i not in only:
            continue
        path = os.path.join(root, f)
        src = open(path).read()
        if src.count(old) != 1:
            print(f'{i}: pattern found {src.count(old)} times in {f}', flush=True)
            continue
        open(path, 'w').write(src.replace(old, new))
        try:
            targets = ['tarvik'] + [t.split('/')[1] for t in tests]
            b = subprocess.run(['cmake', '--build', build, '-j2', '--target'] + targets, capture_output=True, text=True)
            if b.returncode != 0:
                print(f'{i}: does not build', flush=True)
                continue
            failed = []
            for t in tests:
                try:
                    r = subprocess.run([os.path.join(build, 'tests/core', t)], capture_output=True, text=True,
                                       timeout=300, cwd=build)
                    if r.returncode != 0:
                        failed += [l.split()[3] for l in r.stdout.splitlines() if l.startswith('[  FAILED  ]') and '(' in l]
                        failed += [] if failed else [t + ' crashed']
                except subprocess.TimeoutExpired:
                    failed.append(t + ' timed out')
            total += 1
            killed += bool(failed)
            print(f'{i}: {"killed" if failed else "SURVIVED"} {f}: {old.strip()[:50]!r} -> {new.strip()[:50]!r} {failed}',
                  flush=True)
        finally:
            open(path, 'w').write(src)
    if total:
        print(f'{killed} of {total} killed ({100 * killed // total}%)')


if __name__ == '__main__':
    main()
