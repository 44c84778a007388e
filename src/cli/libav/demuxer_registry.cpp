// The registries of the FFmpeg libraries, cut down to what `tarvik telemetry`
// uses: the MP4/QuickTime demuxer over plain files. FFmpeg's own build
// generates these lists from its configuration; linking its static libraries
// with these instead leaves out every other format, codec, protocol and
// hardware back end, and the hundred shared libraries they would load at
// each start of the command. Written for FFmpeg 5.1 (libavformat 59).

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavcodec/bsf.h>
#include <libavformat/avformat.h>
#include <libavutil/hwcontext.h>

struct URLProtocol;
extern const AVInputFormat ff_mov_demuxer;
extern const URLProtocol ff_file_protocol;

const AVInputFormat* av_demuxer_iterate(void** opaque) {
    if (*opaque) return nullptr;
    *opaque = reinterpret_cast<void*>(1);
    return &ff_mov_demuxer;
}
const AVOutputFormat* av_muxer_iterate(void**) { return nullptr; }
void avpriv_register_devices(const AVOutputFormat* const[], const AVInputFormat* const[]) {}

const URLProtocol** ffurl_get_protocols(const char*, const char*) {
    auto** list = static_cast<const URLProtocol**>(av_calloc(2, sizeof(URLProtocol*)));
    if (list) list[0] = &ff_file_protocol;
    return list;
}
const char* avio_enum_protocols(void**, int) { return nullptr; }
const AVClass* avio_protocol_get_class(const char*) { return nullptr; }
const AVClass* ff_urlcontext_child_class_iterate(void**) { return nullptr; }
void ff_gnutls_init(void) {}
void ff_gnutls_deinit(void) {}

// Subtitle samples are copied as they are: no codec, parser or filter runs.
const AVCodec* av_codec_iterate(void**) { return nullptr; }
const AVCodec* avcodec_find_decoder(enum AVCodecID) { return nullptr; }
const AVCodec* avcodec_find_decoder_by_name(const char*) { return nullptr; }
const AVCodec* avcodec_find_encoder(enum AVCodecID) { return nullptr; }
const AVCodec* avcodec_find_encoder_by_name(const char*) { return nullptr; }
const AVBitStreamFilter* av_bsf_get_by_name(const char*) { return nullptr; }
const AVBitStreamFilter* av_bsf_iterate(void**) { return nullptr; }
const AVClass* ff_bsf_child_class_iterate(void**) { return nullptr; }
const AVCodecParser* av_parser_iterate(void**) { return nullptr; }

// No hardware decoding either.
AVBufferRef* av_hwdevice_ctx_alloc(enum AVHWDeviceType) { return nullptr; }
int av_hwdevice_ctx_create(AVBufferRef**, enum AVHWDeviceType, const char*, AVDictionary*, int) { return AVERROR(ENOSYS); }
int av_hwdevice_ctx_create_derived(AVBufferRef**, enum AVHWDeviceType, AVBufferRef*, int) { return AVERROR(ENOSYS); }
int av_hwdevice_ctx_create_derived_opts(AVBufferRef**, enum AVHWDeviceType, AVBufferRef*, AVDictionary*, int) {
    return AVERROR(ENOSYS);
}
int av_hwdevice_ctx_init(AVBufferRef*) { return AVERROR(ENOSYS); }
enum AVHWDeviceType av_hwdevice_find_type_by_name(const char*) { return AV_HWDEVICE_TYPE_NONE; }
AVHWFramesConstraints* av_hwdevice_get_hwframe_constraints(AVBufferRef*, const void*) { return nullptr; }
const char* av_hwdevice_get_type_name(enum AVHWDeviceType) { return nullptr; }
void* av_hwdevice_hwconfig_alloc(AVBufferRef*) { return nullptr; }
enum AVHWDeviceType av_hwdevice_iterate_types(enum AVHWDeviceType) { return AV_HWDEVICE_TYPE_NONE; }
void av_hwframe_constraints_free(AVHWFramesConstraints**) {}
AVBufferRef* av_hwframe_ctx_alloc(AVBufferRef*) { return nullptr; }
int av_hwframe_ctx_create_derived(AVBufferRef**, enum AVPixelFormat, AVBufferRef*, AVBufferRef*, int) {
    return AVERROR(ENOSYS);
}
int av_hwframe_ctx_init(AVBufferRef*) { return AVERROR(ENOSYS); }
int av_hwframe_get_buffer(AVBufferRef*, AVFrame*, int) { return AVERROR(ENOSYS); }
int av_hwframe_map(AVFrame*, const AVFrame*, int) { return AVERROR(ENOSYS); }
int av_hwframe_transfer_data(AVFrame*, const AVFrame*, int) { return AVERROR(ENOSYS); }
int av_hwframe_transfer_get_formats(AVBufferRef*, enum AVHWFrameTransferDirection, enum AVPixelFormat**, int) {
    return AVERROR(ENOSYS);
}
int ff_hwframe_map_create(AVBufferRef*, AVFrame*, const AVFrame*, void (*)(void*, void*), void*) {
    return AVERROR(ENOSYS);
}
int ff_hwframe_map_replace(AVFrame*, const AVFrame*) { return AVERROR(ENOSYS); }
}
