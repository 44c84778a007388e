<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="ko_KR">
<context>
    <name>Localizable_M420</name>
    <message>
        <source>영어</source>
        <translation>Anglais</translation>
    </message>
    <message>
        <source>프랑스어</source>
        <translation>Français</translation>
    </message>
    <message>
        <source>일본어</source>
        <translation>Japonais</translation>
    </message>
    <message>
        <source>언어</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>속도 단위</source>
        <translation>Unité de vitesse</translation>
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
        <translation>Tous</translation>
    </message>
    <message>
        <source>파일_상시</source>
        <translation>Continu</translation>
    </message>
    <message>
        <source>파일_모션</source>
        <translation>Mouvement</translation>
    </message>
    <message>
        <source>파일_이벤트</source>
        <translation>Événement</translation>
    </message>
    <message>
        <source>파일_수동</source>
        <translation>Manuel</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>Inconnu</translation>
    </message>
    <message>
        <source>열기</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>저장</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>취소</source>
        <translation>Annuler</translation>
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
        <translation>Non</translation>
    </message>
    <message>
        <source>예</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>메모리카드 오류</source>
        <translation>Erreur de carte mémoire</translation>
    </message>
    <message>
        <source>메모리카드를 확인하여 주시기 바랍니다.</source>
        <translation>Veuillez vérifier la carte mémoire.</translation>
    </message>
    <message>
        <source>지원하지 않는 형식으로 인코딩된 동영상입니다.</source>
        <translation>Cette vidéo est encodée dans un format non pris en charge.</translation>
    </message>
    <message>
        <source>주차모드</source>
        <translation>Mode parking</translation>
    </message>
    <message>
        <source>주차모드를 사용하지 않는 경우,
차량 시동이 꺼지면 주차 중 녹화가 되지 않습니다.
주차모드 사용을 해제 하시겠습니까?</source>
        <translation>Sans le mode parking,
rien n&apos;est enregistré pendant le stationnement une fois le moteur coupé.
Désactiver le mode parking ?</translation>
    </message>
    <message>
        <source>주차모션 선택 시,
타임랩스 영상이 삭제되고 주차모션 영상이 저장됩니다.
적용하시겠습니까?</source>
        <translation>Avec la détection de mouvement en stationnement,
les vidéos time-lapse sont supprimées et les vidéos de mouvement sont enregistrées.
Appliquer ?</translation>
    </message>
    <message>
        <source>타임랩스 선택 시 
주차모션 영상이 삭제되고 주차모드 및 주차충격 영상이 타임랩스로 저장됩니다.
적용하시겠습니까?</source>
        <translation>Avec le time-lapse,
les vidéos de mouvement sont supprimées et les vidéos de stationnement et de choc en stationnement sont enregistrées en time-lapse.
Appliquer ?</translation>
    </message>
    <message>
        <source>메모리 카드 포멧</source>
        <translation>Formater la carte mémoire</translation>
    </message>
    <message>
        <source>주의 : 포맷 시 메모리 카드의 모든 데이터가 삭제됩니다.</source>
        <translation>Attention : le formatage efface toutes les données de la carte mémoire.</translation>
    </message>
    <message>
        <source>주의 : 포맷 시 메모리 카드의 모든 데이터가 삭제됩니다. &#xd;
포맷하려면 (예)를, 취소하려면 (아니오)를 선택 하십시오.</source>
        <translation>Attention : le formatage efface toutes les données de la carte mémoire. &#xd;
Choisissez (Oui) pour formater ou (Non) pour annuler.</translation>
    </message>
    <message>
        <source>포맷 중 입니다.&#xd;
잠시만 기다려 주십시오.</source>
        <translation>Formatage en cours...&#xd;
Veuillez patienter.</translation>
    </message>
    <message>
        <source>메모리 카드 포맷이 완료 되었습니다.</source>
        <translation>Le formatage de la carte mémoire est terminé.</translation>
    </message>
    <message>
        <source>메모리 카드를 포멧할 수 없습니다.</source>
        <translation>La carte mémoire ne peut pas être formatée.</translation>
    </message>
    <message>
        <source>메모리 카드를 포멧할 수 없습니다.&#xd;
&#xd;
TARVIK VIEWR에서 동영상을 재생 중이거나 GPS 데이터를 수집중인 경우&#xd;
TARVIK VIEWER를 종료하고 다시 포맷하십시오.&#xd;
메모리카드를 사용하고 있는 디스크 유틸리티나 다른 프로그램을 종료하고&#xd;
메모리카드의 내용을 표시하고 있는 창이 없는지 확인한 다음 다시 포맷하십시오.</source>
        <translation>La carte mémoire ne peut pas être formatée.&#xd;
&#xd;
Si TARVIK VIEWER lit une vidéo ou collecte des données GPS,&#xd;
quittez TARVIK VIEWER et formatez à nouveau.&#xd;
Quittez l&apos;utilitaire de disque ou tout autre programme utilisant la carte mémoire,&#xd;
vérifiez qu&apos;aucune fenêtre n&apos;affiche le contenu de la carte, puis formatez à nouveau.</translation>
    </message>
    <message>
        <source>초기화하기</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>주의 : 현재 설정된 화면 터치 정확도 값이 초기화 됩니다.</source>
        <translation>Attention : le calibrage actuel de l&apos;écran tactile sera réinitialisé.</translation>
    </message>
    <message>
        <source>주의 : 현재 설정된 화면 터치 정확도 값이 초기화 됩니다. &#xd;
초기화하려면 (예)를, 취소하려면 (아니오)를 선택 하십시오.</source>
        <translation>Attention : le calibrage actuel de l&apos;écran tactile sera réinitialisé. &#xd;
Choisissez (Oui) pour réinitialiser ou (Non) pour annuler.</translation>
    </message>
    <message>
        <source>플래시 메모리를 선택해주세요.</source>
        <translation>Veuillez sélectionner la mémoire flash.</translation>
    </message>
    <message>
        <source>Norvane 블랙박스 정보를 읽을 수 없습니다.
모델명을 선택하면 기본 설정 값을 적용 할 수 있습니다.</source>
        <translation>Impossible de lire les informations de la dashcam Norvane.
Choisissez un modèle pour appliquer ses réglages par défaut.</translation>
    </message>
    <message>
        <source>블랙박스 설정</source>
        <translation>Réglages de la dashcam</translation>
    </message>
    <message>
        <source>설정값 초기화</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>Q260 : 메모리 파티션</source>
        <translation>Partition mémoire</translation>
    </message>
    <message>
        <source>A Type(권장)</source>
        <translation>Type A (recommandé)</translation>
    </message>
    <message>
        <source>B Type</source>
        <translation>Type B</translation>
    </message>
    <message>
        <source>C Type</source>
        <translation>Type C</translation>
    </message>
    <message>
        <source>Q260 : 상시녹화</source>
        <translation>Continu</translation>
    </message>
    <message>
        <source>Q260 : 주차녹화</source>
        <translation>Stationnement</translation>
    </message>
    <message>
        <source>Q260 : 이벤트녹화</source>
        <translation>Événement</translation>
    </message>
    <message>
        <source>Q260 : 수동녹화</source>
        <translation>Manuel</translation>
    </message>
    <message>
        <source>Q260 : 자동주차모드</source>
        <translation>Mode parking auto</translation>
    </message>
    <message>
        <source>Q260 : 사용 함</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>Q260 : 사용 안 함</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>(시동이 꺼지면 주차 녹화 모드로 전환합니다</source>
        <translation>(passe en enregistrement parking moteur coupé</translation>
    </message>
    <message>
        <source>(시동이 꺼지면 블랙박스를 종료합니다</source>
        <translation>(éteint la dashcam moteur coupé</translation>
    </message>
    <message>
        <source>Q260 : 녹화종료전압</source>
        <translation>Tension de coupure</translation>
    </message>
    <message>
        <source>Q260 : 날짜 / 시간</source>
        <translation>Date / Heure</translation>
    </message>
    <message>
        <source>현재 시간 가져오기</source>
        <translation>Heure actuelle</translation>
    </message>
    <message>
        <source>Q260 : 표준 시간대</source>
        <translation>Fuseau horaire</translation>
    </message>
    <message>
        <source>Q260 : Daylight Saving Time</source>
        <translation>Heure d&apos;été</translation>
    </message>
    <message>
        <source>속도표시</source>
        <translation>Affichage vitesse</translation>
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
        <translation>Enregistrement audio</translation>
    </message>
    <message>
        <source>Q260 : 음성안내</source>
        <translation>Guidage vocal</translation>
    </message>
    <message>
        <source>Q260 : 작게</source>
        <translation>Faible</translation>
    </message>
    <message>
        <source>Q260 : 크게</source>
        <translation>Fort</translation>
    </message>
    <message>
        <source>Q260 : 충격감도</source>
        <translation>Sensibilité aux chocs</translation>
    </message>
    <message>
        <source>Q260 : 둔감</source>
        <translation>Faible</translation>
    </message>
    <message>
        <source>Q260 : 민감</source>
        <translation>Élevée</translation>
    </message>
    <message>
        <source>Q260 : 모션인식감도</source>
        <translation>Sensibilité de détection</translation>
    </message>
    <message>
        <source>시큐리티 LED</source>
        <translation>LED de sécurité</translation>
    </message>
    <message>
        <source>Q260 : 펌웨어 버전</source>
        <translation>Version du micrologiciel</translation>
    </message>
    <message>
        <source>Q260 : Model</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <source>Q260 : Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>(UTC-10:00) Hawaii</source>
        <translation>(UTC-10:00) Hawaï</translation>
    </message>
    <message>
        <source>(UTC-09:00) Alaska</source>
        <translation>(UTC-09:00) Alaska</translation>
    </message>
    <message>
        <source>(UTC-08:00) Pacific Standard Time (U.S.A and Canada)</source>
        <translation>(UTC-08:00) Heure du Pacifique (États-Unis et Canada)</translation>
    </message>
    <message>
        <source>(UTC-07:00) Mountain Standard Time (U.S.A and Canada)</source>
        <translation>(UTC-07:00) Heure des Rocheuses (États-Unis et Canada)</translation>
    </message>
    <message>
        <source>(UTC-06:00) Central Standard Time (U.S.A and Canada)</source>
        <translation>(UTC-06:00) Heure du Centre (États-Unis et Canada)</translation>
    </message>
    <message>
        <source>(UTC-05:00) Eastern Standard Time (U.S.A and Canada)</source>
        <translation>(UTC-05:00) Heure de l&apos;Est (États-Unis et Canada)</translation>
    </message>
    <message>
        <source>(UTC-04:00) Atlantic  Standard Time (Canada)</source>
        <translation>(UTC-04:00) Heure de l&apos;Atlantique (Canada)</translation>
    </message>
    <message>
        <source>(UTC) Greenwich</source>
        <translation>(UTC) Greenwich</translation>
    </message>
    <message>
        <source>(UTC+01:00) Brussels, Copenhagen, Madrid, Paris</source>
        <translation>(UTC+01:00) Bruxelles, Copenhague, Madrid, Paris</translation>
    </message>
    <message>
        <source>(UTC+08:00) Kuala Lumpur, Singapore</source>
        <translation>(UTC+08:00) Kuala Lumpur, Singapour</translation>
    </message>
    <message>
        <source>(UTC+09:30) Adelaide</source>
        <translation>(UTC+09:30) Adélaïde</translation>
    </message>
    <message>
        <source>(UTC+10:00) Canberra, Melbourne, Sidney</source>
        <translation>(UTC+10:00) Canberra, Melbourne, Sydney</translation>
    </message>
    <message>
        <source>이전 파일</source>
        <translation>Clip précédent</translation>
    </message>
    <message>
        <source>이전 프레임</source>
        <translation>Image précédente</translation>
    </message>
    <message>
        <source>재생/일시정지</source>
        <translation>Lecture/Pause</translation>
    </message>
    <message>
        <source>정지</source>
        <translation>Arrêt</translation>
    </message>
    <message>
        <source>다음 프레임</source>
        <translation>Image suivante</translation>
    </message>
    <message>
        <source>다음 파일</source>
        <translation>Clip suivant</translation>
    </message>
    <message>
        <source>스냅샷 저장</source>
        <translation>Enregistrer une capture</translation>
    </message>
    <message>
        <source>인쇄</source>
        <translation>Imprimer</translation>
    </message>
    <message>
        <source>확대</source>
        <translation>Zoom avant</translation>
    </message>
    <message>
        <source>축소</source>
        <translation>Zoom arrière</translation>
    </message>
    <message>
        <source>원래 크기</source>
        <translation>Taille réelle</translation>
    </message>
    <message>
        <source>상하 반전</source>
        <translation>Retourner l'image</translation>
    </message>
    <message>
        <source>전방/후방 전환</source>
        <translation>Permuter avant et arrière</translation>
    </message>
    <message>
        <source>전체 화면</source>
        <translation>Plein écran</translation>
    </message>
    <message>
        <source>전체 화면 종료</source>
        <translation>Quitter le plein écran</translation>
    </message>
    <message>
        <source>음소거</source>
        <translation>Couper le son</translation>
    </message>
    <message>
        <source>음량</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>최소화</source>
        <translation>Réduire</translation>
    </message>
    <message>
        <source>종료</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>삭제</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>동영상 파일을 찾을 수 없습니다.</source>
        <translation>Le fichier vidéo est introuvable.</translation>
    </message>
    <message>
        <source>동영상 파일을 읽을 수 없습니다.</source>
        <translation>Le fichier vidéo ne peut pas être lu.</translation>
    </message>
    <message>
        <source>동영상 파일이 비어 있습니다.</source>
        <translation>Le fichier vidéo est vide.</translation>
    </message>
    <message>
        <source>동영상 파일이 중간에 잘려 있습니다.</source>
        <translation>Le fichier vidéo est tronqué.</translation>
    </message>
    <message>
        <source>휴지통으로 옮길까요?</source>
        <translation>Mettre à la corbeille ?</translation>
    </message>
    <message>
        <source>재생 중인 영상은 삭제할 수 없습니다.</source>
        <translation>Une vidéo en cours de lecture ne peut pas être supprimée.</translation>
    </message>
    <message>
        <source>휴지통으로 옮기지 못했습니다.</source>
        <translation>Impossible de mettre la vidéo à la corbeille.</translation>
    </message>
    <message>
        <source>공통</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>상시녹화</source>
        <translation>Enregistrement continu</translation>
    </message>
    <message>
        <source>주차녹화</source>
        <translation>Enregistrement en stationnement</translation>
    </message>
    <message>
        <source>기타</source>
        <translation>Autres</translation>
    </message>
    <message>
        <source>전방 밝기</source>
        <translation>Luminosité avant</translation>
    </message>
    <message>
        <source>음성 녹음</source>
        <translation>Enregistrement audio</translation>
    </message>
    <message>
        <source>음성 안내</source>
        <translation>Guidage vocal</translation>
    </message>
    <message>
        <source>음성 안내 볼륨</source>
        <translation>Volume du guidage vocal</translation>
    </message>
    <message>
        <source>표준 시간대</source>
        <translation>Fuseau horaire</translation>
    </message>
    <message>
        <source>서머타임</source>
        <translation>Heure d'été</translation>
    </message>
    <message>
        <source>운전 가이드</source>
        <translation>Aide à la conduite</translation>
    </message>
    <message>
        <source>LCD 밝기</source>
        <translation>Luminosité de l'écran</translation>
    </message>
    <message>
        <source>날짜 / 시간 설정</source>
        <translation>Régler la date et l'heure</translation>
    </message>
    <message>
        <source>전방 해상도</source>
        <translation>Résolution avant</translation>
    </message>
    <message>
        <source>프레임</source>
        <translation>Images par seconde</translation>
    </message>
    <message>
        <source>전방 화질</source>
        <translation>Qualité avant</translation>
    </message>
    <message>
        <source>후방 해상도</source>
        <translation>Résolution arrière</translation>
    </message>
    <message>
        <source>후방 화질</source>
        <translation>Qualité arrière</translation>
    </message>
    <message>
        <source>충격 감도</source>
        <translation>Sensibilité aux chocs</translation>
    </message>
    <message>
        <source>차선이탈 경보</source>
        <translation>Alerte de sortie de voie</translation>
    </message>
    <message>
        <source>차선이탈 경보 속도</source>
        <translation>Vitesse d'alerte de sortie de voie</translation>
    </message>
    <message>
        <source>전방추돌 경보</source>
        <translation>Alerte de collision avant</translation>
    </message>
    <message>
        <source>앞차 출발 알림</source>
        <translation>Départ du véhicule devant</translation>
    </message>
    <message>
        <source>주차모션</source>
        <translation>Mouvement en stationnement</translation>
    </message>
    <message>
        <source>타임랩스</source>
        <translation>Accéléré</translation>
    </message>
    <message>
        <source>사용</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>사용 안 함</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>모션 감지</source>
        <translation>Détection de mouvement</translation>
    </message>
    <message>
        <source>모션 감도</source>
        <translation>Sensibilité au mouvement</translation>
    </message>
    <message>
        <source>주차 녹화 시간</source>
        <translation>Durée d'enregistrement en stationnement</translation>
    </message>
    <message>
        <source>배터리 차단 전압 12V</source>
        <translation>Tension de coupure batterie 12V</translation>
    </message>
    <message>
        <source>배터리 차단 전압 24V</source>
        <translation>Tension de coupure batterie 24V</translation>
    </message>
    <message>
        <source>상시 충격 덮어쓰기</source>
        <translation>Écraser les chocs en continu</translation>
    </message>
    <message>
        <source>주차 모션 덮어쓰기</source>
        <translation>Écraser les mouvements en stationnement</translation>
    </message>
    <message>
        <source>주차 충격 덮어쓰기</source>
        <translation>Écraser les chocs en stationnement</translation>
    </message>
    <message>
        <source>수동 녹화 덮어쓰기</source>
        <translation>Écraser les enregistrements manuels</translation>
    </message>
    <message>
        <source>보안 LED</source>
        <translation>LED de sécurité</translation>
    </message>
    <message>
        <source>모드 1</source>
        <translation>Mode 1</translation>
    </message>
    <message>
        <source>모드 2</source>
        <translation>Mode 2</translation>
    </message>
    <message>
        <source>모드 3</source>
        <translation>Mode 3</translation>
    </message>
    <message>
        <source>메모리 분할</source>
        <translation>Partition de la mémoire</translation>
    </message>
    <message>
        <source>기본</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>수동 우선</source>
        <translation>Manuel en priorité</translation>
    </message>
    <message>
        <source>주차 우선</source>
        <translation>Stationnement en priorité</translation>
    </message>
    <message>
        <source>상시</source>
        <translation>Continu</translation>
    </message>
    <message>
        <source>상시 충격</source>
        <translation>Choc en continu</translation>
    </message>
    <message>
        <source>주차 모션</source>
        <translation>Mouvement en stationnement</translation>
    </message>
    <message>
        <source>주차 충격</source>
        <translation>Choc en stationnement</translation>
    </message>
    <message>
        <source>수동</source>
        <translation>Manuel</translation>
    </message>
    <message>
        <source>화면 터치 초기화</source>
        <translation>Réinitialiser l'étalonnage tactile</translation>
    </message>
    <message>
        <source>켜짐</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>꺼짐</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>낮음</source>
        <translation>Faible</translation>
    </message>
    <message>
        <source>보통</source>
        <translation>Normale</translation>
    </message>
    <message>
        <source>높음</source>
        <translation>Élevée</translation>
    </message>
    <message>
        <source>Recording time</source>
        <translation>Heure d'enregistrement</translation>
    </message>
    <message>
        <source>Cannot be played</source>
        <translation>Lecture impossible</translation>
    </message>
    <message>
        <source>Front without rear</source>
        <translation>Avant sans arrière</translation>
    </message>
    <message>
        <source>Rear without front</source>
        <translation>Arrière sans avant</translation>
    </message>
    <message>
        <source>No driving data</source>
        <translation>Aucune donnée de conduite</translation>
    </message>
    <message>
        <source>Gap in the recording</source>
        <translation>Interruption de l'enregistrement</translation>
    </message>
    <message>
        <source>Settings files</source>
        <translation>Fichiers de réglages</translation>
    </message>
    <message>
        <source>Free space</source>
        <translation>Espace libre</translation>
    </message>
    <message>
        <source>Card report</source>
        <translation>Rapport de la carte</translation>
    </message>
    <message>
        <source>Finding</source>
        <translation>Constat</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Detail</source>
        <translation>Détail</translation>
    </message>
    <message>
        <source>Checking every clip on the card...</source>
        <translation>Vérification de chaque vidéo de la carte...</translation>
    </message>
    <message>
        <source>no settings files</source>
        <translation>aucun fichier de réglages</translation>
    </message>
    <message>
        <source>settings file unreadable</source>
        <translation>fichier de réglages illisible</translation>
    </message>
    <message>
        <source>settings readable</source>
        <translation>réglages lisibles</translation>
    </message>
    <message>
        <source>, %1 bytes</source>
        <translation>, %1 octets</translation>
    </message>
    <message>
        <source>All is well</source>
        <translation>Tout va bien</translation>
    </message>
    <message>
        <source>Export route</source>
        <translation>Exporter l'itinéraire</translation>
    </message>
    <message>
        <source>Show clips</source>
        <translation>Afficher les vidéos</translation>
    </message>
    <message>
        <source>Show trips</source>
        <translation>Afficher les trajets</translation>
    </message>
    <message>
        <source>Export route of the selected clips...</source>
        <translation>Exporter l'itinéraire des vidéos sélectionnées...</translation>
    </message>
    <message>
        <source>Export route of the whole trip...</source>
        <translation>Exporter l'itinéraire du trajet entier...</translation>
    </message>
    <message>
        <source>Card report...</source>
        <translation>Rapport de la carte...</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Début</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Durée</translation>
    </message>
    <message numerus="yes">
        <source>%n clips</source>
        <translation>
            <numerusform>%n vidéo</numerusform>
            <numerusform>%n vidéos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n trips</source>
        <translation>
            <numerusform>%n trajet</numerusform>
            <numerusform>%n trajets</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n things need attention</source>
        <translation>
            <numerusform>%n point à vérifier</numerusform>
            <numerusform>%n points à vérifier</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n notes</source>
        <translation>
            <numerusform>%n remarque</numerusform>
            <numerusform>%n remarques</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing needs attention</source>
        <translation>Rien à vérifier</translation>
    </message>
    <message>
        <source>%1 in %2  ·  %3 of %4 GiB free  ·  %5</source>
        <translation>%1 en %2  ·  %3 Gio libres sur %4  ·  %5</translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation>Dossier introuvable</translation>
    </message>
    <message>
        <source>This folder does not exist.</source>
        <translation>Ce dossier n'existe pas.</translation>
    </message>
    <message>
        <source>Trips</source>
        <translation>Trajets</translation>
    </message>
    <message>
        <source>Export route of the playing trip...</source>
        <translation>Exporter l'itinéraire du trajet en cours...</translation>
    </message>
    <message>
        <source>Export route of this trip...</source>
        <translation>Exporter l'itinéraire de ce trajet...</translation>
    </message>
    <message>
        <source>The disk service (UDisks2) does not answer.</source>
        <translation>Le service des disques (UDisks2) ne répond pas.</translation>
    </message>
    <message>
        <source>The disk service (UDisks2) does not know the device mounted here.</source>
        <translation>Le service des disques (UDisks2) ne connaît pas le périphérique monté ici.</translation>
    </message>
    <message>
        <source>The disk service (UDisks2) finds no file system on the card.</source>
        <translation>Le service des disques (UDisks2) ne trouve aucun système de fichiers sur la carte.</translation>
    </message>
    <message>
        <source>The disk service (UDisks2) says the card's drive is not removable.</source>
        <translation>Selon le service des disques (UDisks2), le lecteur de la carte n'est pas amovible.</translation>
    </message>
    <message>
        <source>The disk service (UDisks2) said: %1</source>
        <translation>Le service des disques (UDisks2) a répondu : %1</translation>
    </message>
    <message>
        <source>The card is in use by another program.</source>
        <translation>La carte est utilisée par un autre programme.</translation>
    </message>
    <message>
        <source>Formatting the card was not authorised.</source>
        <translation>Le formatage de la carte n'a pas été autorisé.</translation>
    </message>
    <message>
        <source>This folder is not where a card is mounted.</source>
        <translation>Ce dossier n'est pas l'emplacement où une carte est montée.</translation>
    </message>
    <message>
        <source>This volume holds the system or your home folder.</source>
        <translation>Ce volume contient le système ou votre dossier personnel.</translation>
    </message>
    <message>
        <source>The card's drive is not removable.</source>
        <translation>Le lecteur de la carte n'est pas amovible.</translation>
    </message>
    <message>
        <source>The card has no name of its own.</source>
        <translation>La carte n'a pas de nom propre.</translation>
    </message>
    <message>
        <source>The folder %1 does not exist.</source>
        <translation>Le dossier %1 n'existe pas.</translation>
    </message>
    <message>
        <source>Incident</source>
        <translation>Incident</translation>
    </message>
    <message>
        <source>Mark the start of an incident</source>
        <translation>Marquer le début d'un incident</translation>
    </message>
    <message>
        <source>Mark the end of an incident</source>
        <translation>Marquer la fin d'un incident</translation>
    </message>
    <message>
        <source>Clear the marks</source>
        <translation>Effacer les repères</translation>
    </message>
    <message>
        <source>Export incident...</source>
        <translation>Exporter l'incident...</translation>
    </message>
    <message>
        <source>Export incident</source>
        <translation>Exporter l'incident</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exporter</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Span</source>
        <translation>Intervalle</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Disposition</translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation>Incrustation</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualité</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destination</translation>
    </message>
    <message>
        <source>Choose...</source>
        <translation>Choisir...</translation>
    </message>
    <message>
        <source>Front camera only</source>
        <translation>Caméra avant seule</translation>
    </message>
    <message>
        <source>Rear camera only</source>
        <translation>Caméra arrière seule</translation>
    </message>
    <message>
        <source>Front and rear side by side</source>
        <translation>Avant et arrière côte à côte</translation>
    </message>
    <message>
        <source>Rear in a corner of the front</source>
        <translation>Arrière dans un coin de l'avant</translation>
    </message>
    <message>
        <source>High (larger file)</source>
        <translation>Haute (fichier plus gros)</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Compact (smaller file)</source>
        <translation>Compacte (fichier plus petit)</translation>
    </message>
    <message>
        <source>Time, speed, G values and position over the picture</source>
        <translation>Heure, vitesse, valeurs G et position sur l'image</translation>
    </message>
    <message>
        <source>Choose the folder the incident goes into.</source>
        <translation>Choisissez le dossier où placer l'incident.</translation>
    </message>
    <message>
        <source>This folder is on the memory card. Evidence is never written to the card it comes from: choose a folder on another disk.</source>
        <translation>Ce dossier est sur la carte mémoire. Une preuve n'est jamais écrite sur la carte d'où elle vient : choisissez un dossier sur un autre disque.</translation>
    </message>
    <message>
        <source>Preparing</source>
        <translation>Préparation</translation>
    </message>
    <message>
        <source>Copying %1</source>
        <translation>Copie de %1</translation>
    </message>
    <message>
        <source>Making incident.mp4</source>
        <translation>Création de incident.mp4</translation>
    </message>
    <message>
        <source>Writing the route and samples</source>
        <translation>Écriture du trajet et des mesures</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>About %1 s left</source>
        <translation>Environ %1 s restantes</translation>
    </message>
    <message>
        <source>About %1 min %2 s left</source>
        <translation>Environ %1 min %2 s restantes</translation>
    </message>
    <message>
        <source>Cancelling...</source>
        <translation>Annulation...</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Ouvrir le dossier</translation>
    </message>
    <message>
        <source>The incident is in %1</source>
        <translation>L'incident est dans %1</translation>
    </message>
    <message>
        <source>The export was cancelled. Nothing of it was kept.</source>
        <translation>L'export a été annulé. Rien n'en a été gardé.</translation>
    </message>
    <message>
        <source>The destination is full. Nothing of the export was kept.</source>
        <translation>La destination est pleine. Rien de l'export n'a été gardé.</translation>
    </message>
    <message>
        <source>The incident could not be exported: %1</source>
        <translation>L'incident n'a pas pu être exporté : %1</translation>
    </message>
    <message>
        <source>The marked span cannot be exported: %1</source>
        <translation>L'intervalle marqué ne peut pas être exporté : %1</translation>
    </message>
    <message>
        <source>Play a clip, or mark the start and the end of an incident, first.</source>
        <translation>Lisez d'abord un clip, ou marquez le début et la fin d'un incident.</translation>
    </message>
    <message>
        <source>The selected clips are not one stretch of a drive, or their length is unknown.</source>
        <translation>Les clips choisis ne forment pas une seule portion d'un trajet, ou leur durée est inconnue.</translation>
    </message>
    <message>
        <source>This drive cannot be exported: the length of its clips is unknown.</source>
        <translation>Ce trajet ne peut pas être exporté : la durée de ses clips est inconnue.</translation>
    </message>
    <message>
        <source>Save still of both cameras...</source>
        <translation>Enregistrer l'image des deux caméras...</translation>
    </message>
    <message>
        <source>Save still of both cameras</source>
        <translation>Enregistrer l'image des deux caméras</translation>
    </message>
    <message>
        <source>The still could not be saved: %1</source>
        <translation>L'image n'a pas pu être enregistrée : %1</translation>
    </message>
    <message>
        <source>Play a clip first.</source>
        <translation>Lisez d'abord un clip.</translation>
    </message>
    <message>
        <source>Drawing still.png</source>
        <translation>Création de still.png</translation>
    </message>
    <message>
        <source>The route in a corner, with the car on it</source>
        <translation>Le trajet dans un coin, avec la voiture dessus</translation>
    </message>
</context>
</TS>
