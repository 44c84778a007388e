<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="ko_KR">
<context>
    <name>Localizable_M420</name>
    <message>
        <source>영어</source>
        <translation>英語</translation>
    </message>
    <message>
        <source>프랑스어</source>
        <translation>フランス語</translation>
    </message>
    <message>
        <source>일본어</source>
        <translation>日本語</translation>
    </message>
    <message>
        <source>언어</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>속도 단위</source>
        <translation>速度単位</translation>
    </message>
    <message>
        <source>KM/H</source>
        <translation>km/h</translation>
    </message>
    <message>
        <source>MPH</source>
        <translation>mph</translation>
    </message>
    <message>
        <source>파일_전체</source>
        <translation>すべて</translation>
    </message>
    <message>
        <source>파일_상시</source>
        <translation>常時</translation>
    </message>
    <message>
        <source>파일_모션</source>
        <translation>モーション</translation>
    </message>
    <message>
        <source>파일_이벤트</source>
        <translation>イベント</translation>
    </message>
    <message>
        <source>파일_수동</source>
        <translation>手動</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>열기</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>저장</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>취소</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>확인</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>아니오</source>
        <translation>いいえ</translation>
    </message>
    <message>
        <source>예</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>메모리카드 오류</source>
        <translation>メモリーカードエラー</translation>
    </message>
    <message>
        <source>메모리카드를 확인하여 주시기 바랍니다.</source>
        <translation>メモリーカードを確認してください。</translation>
    </message>
    <message>
        <source>지원하지 않는 형식으로 인코딩된 동영상입니다.</source>
        <translation>このビデオはサポートされていない形式でエンコードされています。</translation>
    </message>
    <message>
        <source>주차모드</source>
        <translation>駐車モード</translation>
    </message>
    <message>
        <source>주차모드를 사용하지 않는 경우,
차량 시동이 꺼지면 주차 중 녹화가 되지 않습니다.
주차모드 사용을 해제 하시겠습니까?</source>
        <translation>駐車モードを使用しない場合、
エンジンを切ると駐車中の録画は行われません。
駐車モードを解除しますか？</translation>
    </message>
    <message>
        <source>주차모션 선택 시,
타임랩스 영상이 삭제되고 주차모션 영상이 저장됩니다.
적용하시겠습니까?</source>
        <translation>駐車モーションを選択すると、
タイムラプス映像が削除され、駐車モーション映像が保存されます。
適用しますか？</translation>
    </message>
    <message>
        <source>타임랩스 선택 시 
주차모션 영상이 삭제되고 주차모드 및 주차충격 영상이 타임랩스로 저장됩니다.
적용하시겠습니까?</source>
        <translation>タイムラプスを選択すると、
駐車モーション映像が削除され、駐車モードおよび駐車衝撃映像がタイムラプスで保存されます。
適用しますか？</translation>
    </message>
    <message>
        <source>메모리 카드 포멧</source>
        <translation>メモリーカードのフォーマット</translation>
    </message>
    <message>
        <source>주의 : 포맷 시 메모리 카드의 모든 데이터가 삭제됩니다.</source>
        <translation>注意：フォーマットするとメモリーカードのすべてのデータが削除されます。</translation>
    </message>
    <message>
        <source>주의 : 포맷 시 메모리 카드의 모든 데이터가 삭제됩니다. &#xd;
포맷하려면 (예)를, 취소하려면 (아니오)를 선택 하십시오.</source>
        <translation>注意：フォーマットするとメモリーカードのすべてのデータが削除されます。&#xd;
フォーマットする場合は（はい）を、キャンセルする場合は（いいえ）を選択してください。</translation>
    </message>
    <message>
        <source>포맷 중 입니다.&#xd;
잠시만 기다려 주십시오.</source>
        <translation>フォーマット中です。&#xd;
しばらくお待ちください。</translation>
    </message>
    <message>
        <source>메모리 카드 포맷이 완료 되었습니다.</source>
        <translation>メモリーカードのフォーマットが完了しました。</translation>
    </message>
    <message>
        <source>메모리 카드를 포멧할 수 없습니다.</source>
        <translation>メモリーカードをフォーマットできません。</translation>
    </message>
    <message>
        <source>메모리 카드를 포멧할 수 없습니다.&#xd;
&#xd;
TARVIK VIEWR에서 동영상을 재생 중이거나 GPS 데이터를 수집중인 경우&#xd;
TARVIK VIEWER를 종료하고 다시 포맷하십시오.&#xd;
메모리카드를 사용하고 있는 디스크 유틸리티나 다른 프로그램을 종료하고&#xd;
메모리카드의 내용을 표시하고 있는 창이 없는지 확인한 다음 다시 포맷하십시오.</source>
        <translation>メモリーカードをフォーマットできません。&#xd;
&#xd;
TARVIK VIEWERで動画を再生中、またはGPSデータを収集中の場合は、&#xd;
TARVIK VIEWERを終了してから再度フォーマットしてください。&#xd;
メモリーカードを使用しているディスクユーティリティや他のプログラムを終了し、&#xd;
メモリーカードの内容を表示しているウィンドウがないことを確認してから再度フォーマットしてください。</translation>
    </message>
    <message>
        <source>초기화하기</source>
        <translation>初期化</translation>
    </message>
    <message>
        <source>주의 : 현재 설정된 화면 터치 정확도 값이 초기화 됩니다.</source>
        <translation>注意：現在設定されているタッチ画面の補正値が初期化されます。</translation>
    </message>
    <message>
        <source>주의 : 현재 설정된 화면 터치 정확도 값이 초기화 됩니다. &#xd;
초기화하려면 (예)를, 취소하려면 (아니오)를 선택 하십시오.</source>
        <translation>注意：現在設定されているタッチ画面の補正値が初期化されます。&#xd;
初期化する場合は（はい）を、キャンセルする場合は（いいえ）を選択してください。</translation>
    </message>
    <message>
        <source>플래시 메모리를 선택해주세요.</source>
        <translation>フラッシュメモリーを選択してください。</translation>
    </message>
    <message>
        <source>Norvane 블랙박스 정보를 읽을 수 없습니다.
모델명을 선택하면 기본 설정 값을 적용 할 수 있습니다.</source>
        <translation>Norvaneドライブレコーダーの情報を読み取れません。
モデル名を選択すると、初期設定値を適用できます。</translation>
    </message>
    <message>
        <source>블랙박스 설정</source>
        <translation>ドライブレコーダー設定</translation>
    </message>
    <message>
        <source>설정값 초기화</source>
        <translation>設定を初期化</translation>
    </message>
    <message>
        <source>Q260 : 메모리 파티션</source>
        <translation>メモリーパーティション</translation>
    </message>
    <message>
        <source>A Type(권장)</source>
        <translation>Aタイプ（推奨）</translation>
    </message>
    <message>
        <source>B Type</source>
        <translation>Bタイプ</translation>
    </message>
    <message>
        <source>C Type</source>
        <translation>Cタイプ</translation>
    </message>
    <message>
        <source>Q260 : 상시녹화</source>
        <translation>常時録画</translation>
    </message>
    <message>
        <source>Q260 : 주차녹화</source>
        <translation>駐車録画</translation>
    </message>
    <message>
        <source>Q260 : 이벤트녹화</source>
        <translation>イベント録画</translation>
    </message>
    <message>
        <source>Q260 : 수동녹화</source>
        <translation>手動録画</translation>
    </message>
    <message>
        <source>Q260 : 자동주차모드</source>
        <translation>自動駐車モード</translation>
    </message>
    <message>
        <source>Q260 : 사용 함</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>Q260 : 사용 안 함</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>(시동이 꺼지면 주차 녹화 모드로 전환합니다</source>
        <translation>(エンジンを切ると駐車録画モードに切り替わります</translation>
    </message>
    <message>
        <source>(시동이 꺼지면 블랙박스를 종료합니다</source>
        <translation>(エンジンを切るとドライブレコーダーを終了します</translation>
    </message>
    <message>
        <source>Q260 : 녹화종료전압</source>
        <translation>録画終了電圧</translation>
    </message>
    <message>
        <source>Q260 : 날짜 / 시간</source>
        <translation>日付 / 時刻</translation>
    </message>
    <message>
        <source>현재 시간 가져오기</source>
        <translation>現在時刻を取得</translation>
    </message>
    <message>
        <source>Q260 : 표준 시간대</source>
        <translation>タイムゾーン</translation>
    </message>
    <message>
        <source>Q260 : Daylight Saving Time</source>
        <translation>サマータイム</translation>
    </message>
    <message>
        <source>속도표시</source>
        <translation>速度表示</translation>
    </message>
    <message>
        <source>kph</source>
        <translation>km/h</translation>
    </message>
    <message>
        <source>mph</source>
        <translation>mph</translation>
    </message>
    <message>
        <source>Q260 : 음성녹음</source>
        <translation>音声録音</translation>
    </message>
    <message>
        <source>Q260 : 음성안내</source>
        <translation>音声案内</translation>
    </message>
    <message>
        <source>Q260 : 작게</source>
        <translation>小</translation>
    </message>
    <message>
        <source>Q260 : 크게</source>
        <translation>大</translation>
    </message>
    <message>
        <source>Q260 : 충격감도</source>
        <translation>衝撃感度</translation>
    </message>
    <message>
        <source>Q260 : 둔감</source>
        <translation>鈍感</translation>
    </message>
    <message>
        <source>Q260 : 민감</source>
        <translation>敏感</translation>
    </message>
    <message>
        <source>Q260 : 모션인식감도</source>
        <translation>モーション検知感度</translation>
    </message>
    <message>
        <source>시큐리티 LED</source>
        <translation>セキュリティLED</translation>
    </message>
    <message>
        <source>Q260 : 펌웨어 버전</source>
        <translation>ファームウェアバージョン</translation>
    </message>
    <message>
        <source>Q260 : Model</source>
        <translation>モデル</translation>
    </message>
    <message>
        <source>Q260 : Version</source>
        <translation>バージョン</translation>
    </message>
    <message>
        <source>(UTC-10:00) Hawaii</source>
        <translation>(UTC-10:00) ハワイ</translation>
    </message>
    <message>
        <source>(UTC-09:00) Alaska</source>
        <translation>(UTC-09:00) アラスカ</translation>
    </message>
    <message>
        <source>(UTC-08:00) Pacific Standard Time (U.S.A and Canada)</source>
        <translation>(UTC-08:00) 太平洋標準時 (米国およびカナダ)</translation>
    </message>
    <message>
        <source>(UTC-07:00) Mountain Standard Time (U.S.A and Canada)</source>
        <translation>(UTC-07:00) 山地標準時 (米国およびカナダ)</translation>
    </message>
    <message>
        <source>(UTC-06:00) Central Standard Time (U.S.A and Canada)</source>
        <translation>(UTC-06:00) 中部標準時 (米国およびカナダ)</translation>
    </message>
    <message>
        <source>(UTC-05:00) Eastern Standard Time (U.S.A and Canada)</source>
        <translation>(UTC-05:00) 東部標準時 (米国およびカナダ)</translation>
    </message>
    <message>
        <source>(UTC-04:00) Atlantic  Standard Time (Canada)</source>
        <translation>(UTC-04:00) 大西洋標準時 (カナダ)</translation>
    </message>
    <message>
        <source>(UTC) Greenwich</source>
        <translation>(UTC) グリニッジ</translation>
    </message>
    <message>
        <source>(UTC+01:00) Brussels, Copenhagen, Madrid, Paris</source>
        <translation>(UTC+01:00) ブリュッセル、コペンハーゲン、マドリード、パリ</translation>
    </message>
    <message>
        <source>(UTC+08:00) Kuala Lumpur, Singapore</source>
        <translation>(UTC+08:00) クアラルンプール、シンガポール</translation>
    </message>
    <message>
        <source>(UTC+09:30) Adelaide</source>
        <translation>(UTC+09:30) アデレード</translation>
    </message>
    <message>
        <source>(UTC+10:00) Canberra, Melbourne, Sidney</source>
        <translation>(UTC+10:00) キャンベラ、メルボルン、シドニー</translation>
    </message>
    <message>
        <source>이전 파일</source>
        <translation>前のファイル</translation>
    </message>
    <message>
        <source>이전 프레임</source>
        <translation>前のフレーム</translation>
    </message>
    <message>
        <source>재생/일시정지</source>
        <translation>再生/一時停止</translation>
    </message>
    <message>
        <source>정지</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>다음 프레임</source>
        <translation>次のフレーム</translation>
    </message>
    <message>
        <source>다음 파일</source>
        <translation>次のファイル</translation>
    </message>
    <message>
        <source>스냅샷 저장</source>
        <translation>スナップショットを保存</translation>
    </message>
    <message>
        <source>인쇄</source>
        <translation>印刷</translation>
    </message>
    <message>
        <source>확대</source>
        <translation>拡大</translation>
    </message>
    <message>
        <source>축소</source>
        <translation>縮小</translation>
    </message>
    <message>
        <source>원래 크기</source>
        <translation>元のサイズ</translation>
    </message>
    <message>
        <source>상하 반전</source>
        <translation>上下反転</translation>
    </message>
    <message>
        <source>전방/후방 전환</source>
        <translation>前方/後方の切替</translation>
    </message>
    <message>
        <source>전체 화면</source>
        <translation>全画面</translation>
    </message>
    <message>
        <source>전체 화면 종료</source>
        <translation>全画面を終了</translation>
    </message>
    <message>
        <source>음소거</source>
        <translation>ミュート</translation>
    </message>
    <message>
        <source>음량</source>
        <translation>音量</translation>
    </message>
    <message>
        <source>최소화</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>종료</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>삭제</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>동영상 파일을 찾을 수 없습니다.</source>
        <translation>動画ファイルが見つかりません。</translation>
    </message>
    <message>
        <source>동영상 파일을 읽을 수 없습니다.</source>
        <translation>動画ファイルを読み込めません。</translation>
    </message>
    <message>
        <source>동영상 파일이 비어 있습니다.</source>
        <translation>動画ファイルが空です。</translation>
    </message>
    <message>
        <source>동영상 파일이 중간에 잘려 있습니다.</source>
        <translation>動画ファイルが途中で切れています。</translation>
    </message>
    <message>
        <source>휴지통으로 옮길까요?</source>
        <translation>ゴミ箱に移動しますか？</translation>
    </message>
    <message>
        <source>재생 중인 영상은 삭제할 수 없습니다.</source>
        <translation>再生中の映像は削除できません。</translation>
    </message>
    <message>
        <source>휴지통으로 옮기지 못했습니다.</source>
        <translation>映像をゴミ箱に移動できませんでした。</translation>
    </message>
    <message>
        <source>공통</source>
        <translation>共通</translation>
    </message>
    <message>
        <source>상시녹화</source>
        <translation>常時録画</translation>
    </message>
    <message>
        <source>주차녹화</source>
        <translation>駐車録画</translation>
    </message>
    <message>
        <source>기타</source>
        <translation>その他</translation>
    </message>
    <message>
        <source>전방 밝기</source>
        <translation>前方の明るさ</translation>
    </message>
    <message>
        <source>음성 녹음</source>
        <translation>音声録音</translation>
    </message>
    <message>
        <source>음성 안내</source>
        <translation>音声案内</translation>
    </message>
    <message>
        <source>음성 안내 볼륨</source>
        <translation>音声案内の音量</translation>
    </message>
    <message>
        <source>표준 시간대</source>
        <translation>タイムゾーン</translation>
    </message>
    <message>
        <source>서머타임</source>
        <translation>サマータイム</translation>
    </message>
    <message>
        <source>운전 가이드</source>
        <translation>運転ガイド</translation>
    </message>
    <message>
        <source>LCD 밝기</source>
        <translation>LCDの明るさ</translation>
    </message>
    <message>
        <source>날짜 / 시간 설정</source>
        <translation>日付/時刻の設定</translation>
    </message>
    <message>
        <source>전방 해상도</source>
        <translation>前方解像度</translation>
    </message>
    <message>
        <source>프레임</source>
        <translation>フレームレート</translation>
    </message>
    <message>
        <source>전방 화질</source>
        <translation>前方画質</translation>
    </message>
    <message>
        <source>후방 해상도</source>
        <translation>後方解像度</translation>
    </message>
    <message>
        <source>후방 화질</source>
        <translation>後方画質</translation>
    </message>
    <message>
        <source>충격 감도</source>
        <translation>衝撃感度</translation>
    </message>
    <message>
        <source>차선이탈 경보</source>
        <translation>車線逸脱警報</translation>
    </message>
    <message>
        <source>차선이탈 경보 속도</source>
        <translation>車線逸脱警報の速度</translation>
    </message>
    <message>
        <source>전방추돌 경보</source>
        <translation>前方衝突警報</translation>
    </message>
    <message>
        <source>앞차 출발 알림</source>
        <translation>前車発進通知</translation>
    </message>
    <message>
        <source>주차모션</source>
        <translation>駐車モーション</translation>
    </message>
    <message>
        <source>타임랩스</source>
        <translation>タイムラプス</translation>
    </message>
    <message>
        <source>사용</source>
        <translation>使用する</translation>
    </message>
    <message>
        <source>사용 안 함</source>
        <translation>使用しない</translation>
    </message>
    <message>
        <source>모션 감지</source>
        <translation>モーション検知</translation>
    </message>
    <message>
        <source>모션 감도</source>
        <translation>モーション感度</translation>
    </message>
    <message>
        <source>주차 녹화 시간</source>
        <translation>駐車録画時間</translation>
    </message>
    <message>
        <source>배터리 차단 전압 12V</source>
        <translation>バッテリー遮断電圧 12V</translation>
    </message>
    <message>
        <source>배터리 차단 전압 24V</source>
        <translation>バッテリー遮断電圧 24V</translation>
    </message>
    <message>
        <source>상시 충격 덮어쓰기</source>
        <translation>常時衝撃の上書き</translation>
    </message>
    <message>
        <source>주차 모션 덮어쓰기</source>
        <translation>駐車モーションの上書き</translation>
    </message>
    <message>
        <source>주차 충격 덮어쓰기</source>
        <translation>駐車衝撃の上書き</translation>
    </message>
    <message>
        <source>수동 녹화 덮어쓰기</source>
        <translation>手動録画の上書き</translation>
    </message>
    <message>
        <source>보안 LED</source>
        <translation>セキュリティLED</translation>
    </message>
    <message>
        <source>모드 1</source>
        <translation>モード1</translation>
    </message>
    <message>
        <source>모드 2</source>
        <translation>モード2</translation>
    </message>
    <message>
        <source>모드 3</source>
        <translation>モード3</translation>
    </message>
    <message>
        <source>메모리 분할</source>
        <translation>メモリ分割</translation>
    </message>
    <message>
        <source>기본</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>수동 우선</source>
        <translation>手動優先</translation>
    </message>
    <message>
        <source>주차 우선</source>
        <translation>駐車優先</translation>
    </message>
    <message>
        <source>상시</source>
        <translation>常時</translation>
    </message>
    <message>
        <source>상시 충격</source>
        <translation>常時衝撃</translation>
    </message>
    <message>
        <source>주차 모션</source>
        <translation>駐車モーション</translation>
    </message>
    <message>
        <source>주차 충격</source>
        <translation>駐車衝撃</translation>
    </message>
    <message>
        <source>수동</source>
        <translation>手動</translation>
    </message>
    <message>
        <source>화면 터치 초기화</source>
        <translation>タッチ補正のリセット</translation>
    </message>
    <message>
        <source>켜짐</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>꺼짐</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>낮음</source>
        <translation>低</translation>
    </message>
    <message>
        <source>보통</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>높음</source>
        <translation>高</translation>
    </message>
    <message>
        <source>Recording time</source>
        <translation>録画時刻</translation>
    </message>
    <message>
        <source>Cannot be played</source>
        <translation>再生できません</translation>
    </message>
    <message>
        <source>Front without rear</source>
        <translation>リアのないフロント</translation>
    </message>
    <message>
        <source>Rear without front</source>
        <translation>フロントのないリア</translation>
    </message>
    <message>
        <source>No driving data</source>
        <translation>走行データなし</translation>
    </message>
    <message>
        <source>Gap in the recording</source>
        <translation>録画の途切れ</translation>
    </message>
    <message>
        <source>Settings files</source>
        <translation>設定ファイル</translation>
    </message>
    <message>
        <source>Free space</source>
        <translation>空き容量</translation>
    </message>
    <message>
        <source>Card report</source>
        <translation>カードレポート</translation>
    </message>
    <message>
        <source>Finding</source>
        <translation>項目</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Detail</source>
        <translation>詳細</translation>
    </message>
    <message>
        <source>Checking every clip on the card...</source>
        <translation>カード内のすべての動画を確認しています...</translation>
    </message>
    <message>
        <source>no settings files</source>
        <translation>設定ファイルなし</translation>
    </message>
    <message>
        <source>settings file unreadable</source>
        <translation>設定ファイルを読み取れません</translation>
    </message>
    <message>
        <source>settings readable</source>
        <translation>設定ファイル読み取り可</translation>
    </message>
    <message>
        <source>, %1 bytes</source>
        <translation>、%1 バイト</translation>
    </message>
    <message>
        <source>All is well</source>
        <translation>問題ありません</translation>
    </message>
    <message>
        <source>Export route</source>
        <translation>ルートを書き出す</translation>
    </message>
    <message>
        <source>Show clips</source>
        <translation>動画を表示</translation>
    </message>
    <message>
        <source>Show trips</source>
        <translation>走行を表示</translation>
    </message>
    <message>
        <source>Export route of the selected clips...</source>
        <translation>選択した動画のルートを書き出す...</translation>
    </message>
    <message>
        <source>Export route of the whole trip...</source>
        <translation>走行全体のルートを書き出す...</translation>
    </message>
    <message>
        <source>Card report...</source>
        <translation>カードレポート...</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>End</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時間</translation>
    </message>
    <message numerus="yes">
        <source>%n clips</source>
        <translation>
            <numerusform>動画 %n 本</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n trips</source>
        <translation>
            <numerusform>走行 %n 回</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n things need attention</source>
        <translation>
            <numerusform>要確認 %n 件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n notes</source>
        <translation>
            <numerusform>メモ %n 件</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing needs attention</source>
        <translation>確認が必要な項目はありません</translation>
    </message>
    <message>
        <source>%1 in %2  ·  %3 of %4 GiB free  ·  %5</source>
        <translation>%1、%2  ·  空き %3 / %4 GiB  ·  %5</translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation>フォルダーが見つかりません</translation>
    </message>
    <message>
        <source>This folder does not exist.</source>
        <translation>このフォルダーは存在しません。</translation>
    </message>
    <message>
        <source>Trips</source>
        <translation>走行</translation>
    </message>
    <message>
        <source>Export route of the playing trip...</source>
        <translation>再生中の走行のルートを書き出す...</translation>
    </message>
    <message>
        <source>Export route of this trip...</source>
        <translation>この走行のルートを書き出す...</translation>
    </message>
    <message>
        <source>The disk service (UDisks2) does not answer.</source>
        <translation>ディスクサービス (UDisks2) が応答しません。</translation>
    </message>
    <message>
        <source>The disk service (UDisks2) does not know the device mounted here.</source>
        <translation>ここにマウントされたデバイスはディスクサービス (UDisks2) に認識されていません。</translation>
    </message>
    <message>
        <source>The disk service (UDisks2) finds no file system on the card.</source>
        <translation>ディスクサービス (UDisks2) はカードにファイルシステムを見つけられません。</translation>
    </message>
    <message>
        <source>The disk service (UDisks2) says the card's drive is not removable.</source>
        <translation>ディスクサービス (UDisks2) によると、カードのドライブは取り外し可能ではありません。</translation>
    </message>
    <message>
        <source>The disk service (UDisks2) said: %1</source>
        <translation>ディスクサービス (UDisks2) の応答: %1</translation>
    </message>
    <message>
        <source>The card is in use by another program.</source>
        <translation>カードは別のプログラムで使用中です。</translation>
    </message>
    <message>
        <source>Formatting the card was not authorised.</source>
        <translation>カードのフォーマットは許可されませんでした。</translation>
    </message>
    <message>
        <source>This folder is not where a card is mounted.</source>
        <translation>このフォルダーはカードのマウント先ではありません。</translation>
    </message>
    <message>
        <source>This volume holds the system or your home folder.</source>
        <translation>このボリュームにはシステムまたはホームフォルダーがあります。</translation>
    </message>
    <message>
        <source>The card's drive is not removable.</source>
        <translation>カードのドライブは取り外し可能ではありません。</translation>
    </message>
    <message>
        <source>The card has no name of its own.</source>
        <translation>カードに固有の名前がありません。</translation>
    </message>
    <message>
        <source>The folder %1 does not exist.</source>
        <translation>フォルダー %1 は存在しません。</translation>
    </message>
    <message>
        <source>Incident</source>
        <translation>事故</translation>
    </message>
    <message>
        <source>Mark the start of an incident</source>
        <translation>事故の開始点を設定</translation>
    </message>
    <message>
        <source>Mark the end of an incident</source>
        <translation>事故の終了点を設定</translation>
    </message>
    <message>
        <source>Clear the marks</source>
        <translation>マークを消去</translation>
    </message>
    <message>
        <source>Export incident...</source>
        <translation>事故を書き出す...</translation>
    </message>
    <message>
        <source>Export incident</source>
        <translation>事故の書き出し</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>書き出す</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Span</source>
        <translation>範囲</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>レイアウト</translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation>オーバーレイ</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>画質</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>保存先</translation>
    </message>
    <message>
        <source>Choose...</source>
        <translation>選択...</translation>
    </message>
    <message>
        <source>Front camera only</source>
        <translation>前方カメラのみ</translation>
    </message>
    <message>
        <source>Rear camera only</source>
        <translation>後方カメラのみ</translation>
    </message>
    <message>
        <source>Front and rear side by side</source>
        <translation>前方と後方を横に並べる</translation>
    </message>
    <message>
        <source>Rear in a corner of the front</source>
        <translation>前方の隅に後方を表示</translation>
    </message>
    <message>
        <source>High (larger file)</source>
        <translation>高画質（大きいファイル）</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>Compact (smaller file)</source>
        <translation>コンパクト（小さいファイル）</translation>
    </message>
    <message>
        <source>Time, speed, G values and position over the picture</source>
        <translation>時刻・速度・G値・位置を映像に重ねる</translation>
    </message>
    <message>
        <source>Choose the folder the incident goes into.</source>
        <translation>事故の保存先フォルダを選んでください。</translation>
    </message>
    <message>
        <source>This folder is on the memory card. Evidence is never written to the card it comes from: choose a folder on another disk.</source>
        <translation>このフォルダはメモリーカード上にあります。証拠は元のカードには書き込みません。別のディスクのフォルダを選んでください。</translation>
    </message>
    <message>
        <source>Preparing</source>
        <translation>準備中</translation>
    </message>
    <message>
        <source>Copying %1</source>
        <translation>%1 をコピー中</translation>
    </message>
    <message>
        <source>Making incident.mp4</source>
        <translation>incident.mp4 を作成中</translation>
    </message>
    <message>
        <source>Writing the route and samples</source>
        <translation>ルートと計測値を書き出し中</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>About %1 s left</source>
        <translation>残り約 %1 秒</translation>
    </message>
    <message>
        <source>About %1 min %2 s left</source>
        <translation>残り約 %1 分 %2 秒</translation>
    </message>
    <message>
        <source>Cancelling...</source>
        <translation>キャンセル中...</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>フォルダを開く</translation>
    </message>
    <message>
        <source>The incident is in %1</source>
        <translation>事故は %1 に保存されました</translation>
    </message>
    <message>
        <source>The export was cancelled. Nothing of it was kept.</source>
        <translation>書き出しはキャンセルされました。何も残っていません。</translation>
    </message>
    <message>
        <source>The destination is full. Nothing of the export was kept.</source>
        <translation>保存先がいっぱいです。書き出したものは何も残っていません。</translation>
    </message>
    <message>
        <source>The incident could not be exported: %1</source>
        <translation>事故を書き出せませんでした: %1</translation>
    </message>
    <message>
        <source>The marked span cannot be exported: %1</source>
        <translation>マークした範囲は書き出せません: %1</translation>
    </message>
    <message>
        <source>Play a clip, or mark the start and the end of an incident, first.</source>
        <translation>先にクリップを再生するか、事故の開始点と終了点を設定してください。</translation>
    </message>
    <message>
        <source>The selected clips are not one stretch of a drive, or their length is unknown.</source>
        <translation>選択したクリップは一続きの走行ではないか、長さが不明です。</translation>
    </message>
    <message>
        <source>This drive cannot be exported: the length of its clips is unknown.</source>
        <translation>この走行は書き出せません: クリップの長さが不明です。</translation>
    </message>
    <message>
        <source>Save still of both cameras...</source>
        <translation>両カメラの静止画を保存...</translation>
    </message>
    <message>
        <source>Save still of both cameras</source>
        <translation>両カメラの静止画を保存</translation>
    </message>
    <message>
        <source>The still could not be saved: %1</source>
        <translation>静止画を保存できませんでした: %1</translation>
    </message>
    <message>
        <source>Play a clip first.</source>
        <translation>先にクリップを再生してください。</translation>
    </message>
    <message>
        <source>Drawing still.png</source>
        <translation>still.png を作成中</translation>
    </message>
    <message>
        <source>The route in a corner, with the car on it</source>
        <translation>隅にルートと車の位置を表示</translation>
    </message>
</context>
</TS>
